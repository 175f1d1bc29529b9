#include "vrx_api/visualization/clipping_plane.h"

#include "vrx_api/json/doubles.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

static constexpr Key kOrigin = WIDE("origin");
static constexpr Key kU = WIDE("u");
static constexpr Key kV = WIDE("v");
static constexpr Key kCoefficients = WIDE("plane_coefficients");

void ExcClippingPlane::readObject(const JsonValue& value)
{
    kolt::trace();
    if (!isObject(value, "ExcClippingPlane"))
    {
        return;
    }
    FieldReader fields(value);
    fields.always(kOrigin, m_origin);
    fields.always(kU, m_vectorU);
    // The reader takes "v" into the U vector as well, where it wins over "u"; the V vector is never read.
    fields.always(kV, m_vectorU);
    if (find(value, kOrigin) != nullptr || find(value, kU) != nullptr || find(value, kV) != nullptr)
    {
        m_hasPlane = true;
    }
    const JsonValue* const coefficients = find(value, kCoefficients);
    if (coefficients != nullptr && coefficients->IsArray())
    {
        m_hasCoefficients = true;
        decodeLeadingDoubles(*coefficients, m_coefficients);
    }
}

void ExcClippingPlane::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    kolt::trace();
    if (!m_hasPlane && !m_hasCoefficients)
    {
        value.SetNull();
        return;
    }
    setObject(value, (m_hasPlane ? 3U : 0U) + (m_hasCoefficients ? 1U : 0U), allocator);
    if (m_hasPlane)
    {
        addMember(value, kOrigin, encode(m_origin, allocator), allocator);
        addMember(value, kU, encode(m_vectorU, allocator), allocator);
        addMember(value, kV, encode(m_vectorV, allocator), allocator);
    }
    if (m_hasCoefficients)
    {
        addMember(value, kCoefficients, encodeDoubles(m_coefficients, allocator), allocator);
    }
}

ExcClippingPlane& ExcClippingPlane::setCoefficient(ECoefficient coefficient, double value)
{
    m_coefficients[coefficient] = value;
    return *this;
}

} // namespace vrx
