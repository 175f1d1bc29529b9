#include "vrx_api/common/units.h"

#include "vrx_api/common/unit_tables.h"

#include <map>

namespace vrx
{

namespace
{

// The names as strings, built on the first call and kept as long as the library.
template <class E>
const wstring& nameOf(E value)
{
    static const std::map<E, wstring> names = [] {
        std::map<E, wstring> all;
        for (const EnumName<E>& row : enumTable(E{}))
        {
            all.emplace(row.value, row.name);
        }
        return all;
    }();
    const auto found = names.find(value);
    return found == names.end() ? names.begin()->second : found->second;
}

} // namespace

template <>
const wstring& enumToString(ELengthUnitType value)
{
    return nameOf(value);
}

template <>
const wstring& enumToString(EMassUnitType value)
{
    return nameOf(value);
}

template <>
const wstring& enumToString(ETimeUnitType value)
{
    return nameOf(value);
}

template <>
const wstring& enumToString(ETemperatureUnitType value)
{
    return nameOf(value);
}

template <>
const wstring& enumToString(EWorldOrientation value)
{
    return nameOf(value);
}

template <>
ELengthUnitType enumFromString(const wstring& name)
{
    return enumValue<ELengthUnitType>(name);
}

template <>
EMassUnitType enumFromString(const wstring& name)
{
    return enumValue<EMassUnitType>(name);
}

template <>
ETimeUnitType enumFromString(const wstring& name)
{
    return enumValue<ETimeUnitType>(name);
}

template <>
ETemperatureUnitType enumFromString(const wstring& name)
{
    return enumValue<ETemperatureUnitType>(name);
}

template <>
EWorldOrientation enumFromString(const wstring& name)
{
    return enumValue<EWorldOrientation>(name);
}

} // namespace vrx
