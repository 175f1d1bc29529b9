#pragma once

#include "vrx_api/common/units.h"
#include "vrx_api/json/json_object.h"

#include <cstdint>

namespace vrx
{

/// One factor of a compound unit: a base unit to a power, such as the meter to the power of -3. The library holds the
/// four for masses, lengths, times and temperatures.
template <class T>
class VRX_API ExcUnitComponent : public IJsonObject
{
public:
    ExcUnitComponent() = default;
    /// A base unit with its exponent.
    ExcUnitComponent(T units, std::int32_t dimension)
        : m_dimension(dimension)
        , m_units(units)
    {
    }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The exponent.
    std::int32_t dimension() const { return m_dimension; }
    void setDimension(std::int32_t dimension) { m_dimension = dimension; }

    /// The base unit.
    T units() const { return m_units; }
    void setUnits(T units) { m_units = units; }

private:
    friend struct Described<ExcUnitComponent<T>>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::int32_t m_dimension = 0;
    T m_units = T::Unknown;
};

} // namespace vrx
