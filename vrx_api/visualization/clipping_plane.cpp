#include "vrx_api/visualization/clipping_plane.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcClippingPlane::describe(Self& self, Fields& fields)
{
    const auto describeMembers = [](auto& plane, auto& members) {
        members.flagged(WIDE("origin"), plane.m_hasPlane, plane.m_origin);
        members.flagged(WIDE("u"), plane.m_hasPlane, plane.m_vectorU);
        // The reader takes "v" into the U vector as well, where it wins over "u"; the V vector is never read.
        members.flagged(WIDE("v"), plane.m_hasPlane, inOut(plane.m_vectorU, plane.m_vectorV));
        members.flagged(WIDE("plane_coefficients"), plane.m_hasCoefficients, plane.m_coefficients);
    };
    fields.whole(orNull(!self.m_hasPlane && !self.m_hasCoefficients, record(self, describeMembers)));
}
template struct Described<ExcClippingPlane>;

void ExcClippingPlane::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcClippingPlane");
}

void ExcClippingPlane::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeWhole(*this, value, allocator);
}

ExcClippingPlane& ExcClippingPlane::setCoefficient(ECoefficient coefficient, double value)
{
    m_coefficients[coefficient] = value;
    return *this;
}

} // namespace vrx
