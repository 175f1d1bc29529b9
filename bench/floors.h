#pragma once

#include "bench/road.h"

#include <vector>

namespace bench
{

/// Bare work of a library on one form of a road, from touched memory to touched memory.
struct Floor
{
    const char* step;
    vrx::Bytes Road::*in;
    void (*work)(const vrx::Bytes& in, vrx::Bytes& out);
};

/// Those of zlib and memcpy, and of libdeflate where it is used.
const std::vector<Floor>& floors();

/// Room for the result of any of them.
std::size_t roomForFloors(const Road& road);

} // namespace bench
