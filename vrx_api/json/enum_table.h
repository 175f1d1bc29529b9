#pragma once

#include "vrx_api/json/json_value.h"

namespace vrx
{

/// One row of an enumeration's table: the number, and the name under which it travels.
/// An enumeration has one table, in the order of its numbers, returned by a function `enumTable(E)` in its namespace:
///
///     constexpr EnumName<EPitch> kPitches[] = {{EPitch::Unknown, WIDE("unknown")}, ...};
///     static constexpr const auto& enumTable(EPitch) { return kPitches; }
template <class E>
struct EnumName
{
    E value;
    wstring_view name;
};

/// The name of a number. A number outside the table has the name of the table's lowest number.
template <class E>
constexpr wstring_view enumName(E value)
{
    const auto& table = enumTable(value);
    for (const EnumName<E>& row : table)
    {
        if (row.value == value)
        {
            return row.name;
        }
    }
    return table[0].name;
}

/// The number of a name. A name outside the table has the number of the name that sorts lowest by code unit, which is
/// in general not an "unknown".
template <class E>
constexpr E enumValue(wstring_view name)
{
    const auto& table = enumTable(E{});
    const EnumName<E>* lowest = &table[0];
    for (const EnumName<E>& row : table)
    {
        if (row.name == name)
        {
            return row.value;
        }
        if (row.name < lowest->name)
        {
            lowest = &row;
        }
    }
    return lowest->value;
}

/// The number of a name, or the given one for a name outside the table. For the few enumerations, all of them beside
/// the model, that have a fallback of their own.
template <class E>
constexpr E enumValueOr(wstring_view name, E otherwise)
{
    for (const EnumName<E>& row : enumTable(otherwise))
    {
        if (row.name == name)
        {
            return row.value;
        }
    }
    return otherwise;
}

} // namespace vrx
