#include "vrx_api/visualization/clipping_plane.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcClippingPlane::describe(Self& self, Fields& fields)
{
    fields.flagged(WIDE("origin"), self.m_hasPlane, self.m_origin);
    fields.flagged(WIDE("u"), self.m_hasPlane, self.m_vectorU);
    // The reader takes "v" into the U vector as well, where it wins over "u"; the V vector is never read.
    fields.flagged(WIDE("v"), self.m_hasPlane, inOut(self.m_vectorU, self.m_vectorV));
    fields.flagged(WIDE("plane_coefficients"), self.m_hasCoefficients, self.m_coefficients);
}
template struct Described<ExcClippingPlane>;

void ExcClippingPlane::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcClippingPlane");
}

void ExcClippingPlane::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
    if (!m_hasPlane && !m_hasCoefficients)
    {
        value.SetNull();
    }
}

ExcClippingPlane& ExcClippingPlane::setCoefficient(ECoefficient coefficient, double value)
{
    m_coefficients[coefficient] = value;
    return *this;
}

} // namespace vrx
