#pragma once

#include "vrx_api/json/json_fwd.h"

#include <cstddef>
#include <cstdint>

namespace vrx
{

/// What a value in the binary form begins with. The numbers are frozen: both ends of the channel know them.
enum class BinaryTag : std::uint32_t
{
    Null = 0,
    False = 1,
    True = 2,
    Object = 3, // 8 bytes: the count of the bytes behind it, which hold the members, name first
    Array = 4,  // 8 bytes: the count of the bytes behind it, which hold the elements
    String = 5, // 8 bytes: the count of the 16-bit units behind it
    Int = 6,
    Uint = 7,
    Int64 = 8,
    Uint64 = 9,
    Double = 10,
};

constexpr std::size_t kTagSize = sizeof(BinaryTag);
constexpr std::size_t kSizeSize = sizeof(std::uint64_t);

} // namespace vrx
