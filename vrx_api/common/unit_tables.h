#pragma once

#include "vrx_api/common/units.h"
#include "vrx_api/json/enum_table.h"

namespace vrx
{

inline constexpr EnumName<ELengthUnitType> kLengthUnits[] = {
    {ELengthUnitType::Unknown, WIDE("unknown")},
    {ELengthUnitType::ModelUnit, WIDE("model_unit")},
    {ELengthUnitType::Nanometer, WIDE("nanometer")},
    {ELengthUnitType::Micrometer, WIDE("micrometer")},
    {ELengthUnitType::Millimeter, WIDE("millimeter")},
    {ELengthUnitType::Centimeter, WIDE("centimeter")},
    {ELengthUnitType::Decimeter, WIDE("decimeter")},
    {ELengthUnitType::Meter, WIDE("meter")},
    {ELengthUnitType::Inch, WIDE("inch")},
    {ELengthUnitType::Foot, WIDE("foot")},
    {ELengthUnitType::Mile, WIDE("mile")},
    {ELengthUnitType::Kilometer, WIDE("kilometer")},
    {ELengthUnitType::Milliinch, WIDE("milliinch")},
    {ELengthUnitType::Microinch, WIDE("microinch")},
};
constexpr const auto& enumTable(ELengthUnitType)
{
    return kLengthUnits;
}

inline constexpr EnumName<EMassUnitType> kMassUnits[] = {
    {EMassUnitType::Unknown, WIDE("unknown")},
    {EMassUnitType::ModelUnit, WIDE("model_unit")},
    {EMassUnitType::Centigram, WIDE("centigram")},
    {EMassUnitType::Decigram, WIDE("decigram")},
    {EMassUnitType::Gram, WIDE("gram")},
    {EMassUnitType::Kilogram, WIDE("kilogram")},
    {EMassUnitType::PoindMass, WIDE("poind_mass")},
    {EMassUnitType::Tonne, WIDE("tonne")},
    {EMassUnitType::Slug, WIDE("slug")},
    {EMassUnitType::Lbfsec2In, WIDE("lbfsec2_in")},
};
constexpr const auto& enumTable(EMassUnitType)
{
    return kMassUnits;
}

inline constexpr EnumName<ETimeUnitType> kTimeUnits[] = {
    {ETimeUnitType::Unknown, WIDE("unknown")},
    {ETimeUnitType::ModelUnit, WIDE("model_unit")},
    {ETimeUnitType::Nanosecond, WIDE("nanosecond")},
    {ETimeUnitType::Microsecond, WIDE("microsecond")},
    {ETimeUnitType::Millisecond, WIDE("millisecond")},
    {ETimeUnitType::Second, WIDE("second")},
    {ETimeUnitType::Minute, WIDE("minute")},
    {ETimeUnitType::Hour, WIDE("hour")},
    {ETimeUnitType::Day, WIDE("day")},
};
constexpr const auto& enumTable(ETimeUnitType)
{
    return kTimeUnits;
}

inline constexpr EnumName<ETemperatureUnitType> kTemperatureUnits[] = {
    {ETemperatureUnitType::Unknown, WIDE("unknown")},       {ETemperatureUnitType::ModelUnit, WIDE("model_unit")},
    {ETemperatureUnitType::Fahrenheit, WIDE("fahrenheit")}, {ETemperatureUnitType::Celsius, WIDE("celsius")},
    {ETemperatureUnitType::Kelvin, WIDE("kelvin")},
};
constexpr const auto& enumTable(ETemperatureUnitType)
{
    return kTemperatureUnits;
}

inline constexpr EnumName<EWorldOrientation> kWorldOrientations[] = {
    {EWorldOrientation::Unknown, WIDE("unknown")},
    {EWorldOrientation::UpX, WIDE("up_x")},
    {EWorldOrientation::UpY, WIDE("up_y")},
    {EWorldOrientation::UpZ, WIDE("up_z")},
};
constexpr const auto& enumTable(EWorldOrientation)
{
    return kWorldOrientations;
}

} // namespace vrx
