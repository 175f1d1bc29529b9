#pragma once

#include <cstdint>

namespace vrx
{

/// The units of a drawing. The gaps in the numbers are part of the format.
enum class EInsUnits : std::int32_t
{
    Unknown = 0,
    Inches = 1,
    Feet = 2,
    Miles = 3,
    Millimeters = 4,
    Centimeters = 5,
    Meters = 6,
    Kilometers = 7,
    Microinches = 8,
    Nanometers = 12,
    Microns = 13,
    Decimeters = 14,
};

} // namespace vrx
