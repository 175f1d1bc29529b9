#include "vrx_api/mechanical/misc_material_property.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

using Unit = ExcMiscMaterialProperty::Unit;

static constexpr auto describeUnit = [](auto& unit, auto& fields) {
    fields.filled(WIDE("mass"), unit.mass);
    fields.filled(WIDE("length"), unit.length);
    fields.filled(WIDE("time"), unit.time);
    fields.filled(WIDE("temperature"), unit.temperature);
};

template <class Self, class Fields>
void ExcMiscMaterialProperty::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("value"), self.m_value);
    fields.always(WIDE("unit"), record(self.m_unit, describeUnit));
}
template struct Described<ExcMiscMaterialProperty>;

void ExcMiscMaterialProperty::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMiscMaterialProperty");
}

void ExcMiscMaterialProperty::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

Unit& Unit::setMass(EMassUnitType units, std::int32_t dimension)
{
    mass = std::make_shared<ExcUnitComponent<EMassUnitType>>(units, dimension);
    return *this;
}

Unit& Unit::setLength(ELengthUnitType units, std::int32_t dimension)
{
    length = std::make_shared<ExcUnitComponent<ELengthUnitType>>(units, dimension);
    return *this;
}

Unit& Unit::setTime(ETimeUnitType units, std::int32_t dimension)
{
    time = std::make_shared<ExcUnitComponent<ETimeUnitType>>(units, dimension);
    return *this;
}

Unit& Unit::setTemperature(ETemperatureUnitType units, std::int32_t dimension)
{
    temperature = std::make_shared<ExcUnitComponent<ETemperatureUnitType>>(units, dimension);
    return *this;
}

} // namespace vrx
