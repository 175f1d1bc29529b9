#pragma once

#include "vrx_api/json/enum_table.h"
#include "vrx_api/legacy/ins_units.h"

namespace vrx
{

inline constexpr EnumName<EInsUnits> kInsUnits[] = {
    {EInsUnits::Unknown, WIDE("unknown")},
    {EInsUnits::Inches, WIDE("inches")},
    {EInsUnits::Feet, WIDE("feet")},
    {EInsUnits::Miles, WIDE("miles")},
    {EInsUnits::Millimeters, WIDE("millimeters")},
    {EInsUnits::Centimeters, WIDE("centimeters")},
    {EInsUnits::Meters, WIDE("meters")},
    {EInsUnits::Kilometers, WIDE("kilometers")},
    {EInsUnits::Microinches, WIDE("microinches")},
    {EInsUnits::Nanometers, WIDE("nanometers")},
    {EInsUnits::Microns, WIDE("microns")},
    {EInsUnits::Decimeters, WIDE("decimeters")},
};
constexpr const auto& enumTable(EInsUnits)
{
    return kInsUnits;
}
constexpr EInsUnits enumFallback(EInsUnits)
{
    return EInsUnits::Unknown;
}

} // namespace vrx
