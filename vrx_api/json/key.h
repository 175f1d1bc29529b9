#pragma once

#include "vrx_api/json/json_value.h"

namespace vrx
{

/// The name of a member, always a literal.
struct Key
{
    template <std::size_t N>
    constexpr Key(const wchar (&literal)[N]) // NOLINT(google-explicit-constructor): a key is written as its literal
        : text(literal)
        , size(N - 1)
    {
    }

    const wchar* text;
    std::size_t size;
};

} // namespace vrx
