#pragma once

#include "vrx_api/json/json_fwd.h"

#include <cstddef>
#include <type_traits>

namespace vrx
{

/// One row of an enumeration's table: the number, and the name under which it travels.
/// An enumeration has one table, in the order of its numbers, returned by a function `enumTable(E)` in its namespace:
///
///     constexpr EnumName<EPitch> kPitches[] = {{EPitch::Unknown, WIDE("unknown")}, ...};
///     static constexpr const auto& enumTable(EPitch) { return kPitches; }
///
/// In a header the table is `inline constexpr`, and the function not static. The few enumerations that have a fallback
/// of their own, none of them in the model, tell it next to the table:
///
///     static constexpr EMode enumFallback(EMode) { return EMode::None; }
template <class E>
struct EnumName
{
    E value;
    wstring_view name;
};

template <class E, std::size_t N>
constexpr bool inOrder(const EnumName<E> (&table)[N])
{
    for (std::size_t i = 1; i < N; ++i)
    {
        if (table[i].value <= table[i - 1].value)
        {
            return false;
        }
    }
    return true;
}

/// The table of an enumeration, whose order the compiler checks.
template <class E>
constexpr const auto& tableOf()
{
    static_assert(inOrder(enumTable(E{})), "a table is in the order of its numbers");
    return enumTable(E{});
}

/// The row of a number, or null.
template <class E>
constexpr const EnumName<E>* findRow(E value)
{
    for (const EnumName<E>& row : tableOf<E>())
    {
        if (row.value == value)
        {
            return &row;
        }
    }
    return nullptr;
}

/// The row of a name, or null.
template <class E>
constexpr const EnumName<E>* findRow(wstring_view name)
{
    for (const EnumName<E>& row : tableOf<E>())
    {
        if (row.name == name)
        {
            return &row;
        }
    }
    return nullptr;
}

template <class E, class = void>
inline constexpr bool hasFallback = false;

template <class E>
inline constexpr bool hasFallback<E, std::void_t<decltype(enumFallback(E{}))>> = true;

/// What stands for all names outside the table: the row whose name sorts lowest by code unit, which is in general not
/// an "unknown".
template <class E>
constexpr const EnumName<E>& rowOfOtherNames()
{
    if constexpr (hasFallback<E>)
    {
        return *findRow(enumFallback(E{}));
    }
    else
    {
        const EnumName<E>* lowest = &tableOf<E>()[0];
        for (const EnumName<E>& row : tableOf<E>())
        {
            lowest = row.name < lowest->name ? &row : lowest;
        }
        return *lowest;
    }
}

/// What stands for all numbers outside the table: the row of the lowest number.
template <class E>
constexpr const EnumName<E>& rowOfOtherNumbers()
{
    if constexpr (hasFallback<E>)
    {
        return *findRow(enumFallback(E{}));
    }
    else
    {
        return tableOf<E>()[0];
    }
}

/// The name of a number.
template <class E>
constexpr wstring_view enumName(E value)
{
    constexpr wstring_view kOther = rowOfOtherNumbers<E>().name;
    const EnumName<E>* const row = findRow(value);
    return row != nullptr ? row->name : kOther;
}

/// The number of a name.
template <class E>
constexpr E enumValue(wstring_view name)
{
    constexpr E kOther = rowOfOtherNames<E>().value;
    const EnumName<E>* const row = findRow<E>(name);
    return row != nullptr ? row->value : kOther;
}

} // namespace vrx
