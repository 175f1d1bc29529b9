#pragma once

#include "vrx_api/mechanical/unit_component.h"

#include <cstdint>
#include <memory>

namespace vrx
{

/// A physical property of a material: a value and its unit. A density in kilograms per cubic meter:
///
///     const auto density = std::make_shared<ExcMiscMaterialProperty>();
///     density->setValue(7850.0);
///     density->unit().setMass(EMassUnitType::Kilogram, 1).setLength(ELengthUnitType::Meter, -3);
///
/// Copies share the factors of the unit.
class VRX_API ExcMiscMaterialProperty : public IJsonObject
{
public:
    /// The product of at most four factors; a null pointer is no factor. Nothing is checked. A property without a unit,
    /// such as a Poisson's ratio, has no factors.
    struct VRX_API Unit
    {
        /// Each puts a new component in place of the factor, so that copies keep theirs.
        Unit& setMass(EMassUnitType units, std::int32_t dimension);
        Unit& setLength(ELengthUnitType units, std::int32_t dimension);
        Unit& setTime(ETimeUnitType units, std::int32_t dimension);
        Unit& setTemperature(ETemperatureUnitType units, std::int32_t dimension);

        std::shared_ptr<ExcUnitComponent<EMassUnitType>> mass;
        std::shared_ptr<ExcUnitComponent<ELengthUnitType>> length;
        std::shared_ptr<ExcUnitComponent<ETimeUnitType>> time;
        std::shared_ptr<ExcUnitComponent<ETemperatureUnitType>> temperature;
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    double value() const { return m_value; }
    void setValue(double value) { m_value = value; }

    Unit& unit() { return m_unit; }
    const Unit& unit() const { return m_unit; }

private:
    friend struct Described<ExcMiscMaterialProperty>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    double m_value = 0.0;
    Unit m_unit;
};

} // namespace vrx
