#pragma once

#include "vrx_api/json/json_fwd.h"

#include <cstddef>

namespace vrx
{

/// The name of a member, which lives as long as the library: a literal, or a name of an enumeration's table.
struct Key
{
    template <std::size_t N>
    constexpr Key(const wchar (&literal)[N]) // NOLINT(google-explicit-constructor): a key is written as its literal
        : text(literal)
        , size(N - 1)
    {
    }

    constexpr explicit Key(wstring_view name)
        : text(name.data())
        , size(name.size())
    {
    }

    const wchar* text;
    std::size_t size;
};

} // namespace vrx
