#pragma once

#include "vrx_api/json/json_value.h"

#include <algorithm>
#include <array>

namespace vrx
{

/// Takes the elements of an array up to the first that is no double, and no more than there is room for. Those behind
/// keep what they have.
template <std::size_t N>
void decodeLeadingDoubles(const JsonValue& array, std::array<double, N>& numbers)
{
    const std::size_t count = std::min<std::size_t>(N, array.Size());
    for (std::size_t i = 0; i < count && array.Begin()[i].IsDouble(); ++i)
    {
        numbers[i] = array.Begin()[i].GetDouble();
    }
}

template <std::size_t N>
JsonValue encodeDoubles(const std::array<double, N>& numbers, JsonAllocator& allocator)
{
    JsonValue array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(N), allocator);
    for (const double number : numbers)
    {
        array.PushBack(number, allocator);
    }
    return array;
}

} // namespace vrx
