#pragma once

#include "vrx_api/json/json_fwd.h"
#include "vrx_api/vrx_api_export.h"

#include <cstdint>

namespace vrx
{

/// In which unit lengths are given; the model unit, here and below, is the one in which the model itself is expressed.
enum class ELengthUnitType : std::int32_t
{
    Unknown = 0,
    ModelUnit = 1,
    Nanometer = 2,
    Micrometer = 3,
    Millimeter = 4,
    Centimeter = 5,
    Decimeter = 6,
    Meter = 7,
    Inch = 8,
    Foot = 9,
    Mile = 10,
    Kilometer = 11,
    Milliinch = 12,
    Microinch = 13,
};

/// In which unit masses are given. There is no number 2.
enum class EMassUnitType : std::int32_t
{
    Unknown = 0,
    ModelUnit = 1,
    Centigram = 3,
    Decigram = 4,
    Gram = 5,
    Kilogram = 6,
    PoindMass = 7, // the pound, spelt as on the wire
    Tonne = 8,
    Slug = 9,
    Lbfsec2In = 10, // pound-force times second squared per inch
};

/// A unit of time.
enum class ETimeUnitType : std::int32_t
{
    Unknown = 0,
    ModelUnit = 1,
    Nanosecond = 2,
    Microsecond = 3,
    Millisecond = 4,
    Second = 5,
    Minute = 6,
    Hour = 7,
    Day = 8,
};

/// A unit of temperature.
enum class ETemperatureUnitType : std::int32_t
{
    Unknown = 0,
    ModelUnit = 1,
    Fahrenheit = 2,
    Celsius = 3,
    Kelvin = 4,
};

/// The axis that points up.
enum class EWorldOrientation : std::int32_t
{
    Unknown = 0,
    UpX = 1,
    UpY = 2,
    UpZ = 3,
};

/// The name under which a number travels, for the five enumerations above. A number outside the table has the name of
/// the table's lowest number.
template <class T>
const wstring& enumToString(T value);

/// The number of a name. A name outside the table has the number of the name that sorts lowest: "Meter", say, is read
/// as centimeters.
template <class T>
T enumFromString(const wstring& name);

template <>
VRX_API const wstring& enumToString(ELengthUnitType value);
template <>
VRX_API const wstring& enumToString(EMassUnitType value);
template <>
VRX_API const wstring& enumToString(ETimeUnitType value);
template <>
VRX_API const wstring& enumToString(ETemperatureUnitType value);
template <>
VRX_API const wstring& enumToString(EWorldOrientation value);

template <>
VRX_API ELengthUnitType enumFromString(const wstring& name);
template <>
VRX_API EMassUnitType enumFromString(const wstring& name);
template <>
VRX_API ETimeUnitType enumFromString(const wstring& name);
template <>
VRX_API ETemperatureUnitType enumFromString(const wstring& name);
template <>
VRX_API EWorldOrientation enumFromString(const wstring& name);

} // namespace vrx
