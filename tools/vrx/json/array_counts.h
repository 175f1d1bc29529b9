#pragma once

#include "mp/wide.h"
#include "vrx_api/json/json_value.h"

#include <cstdint>
#include <vector>

namespace json
{

/// How many elements all arrays under one name have together.
struct ArrayCount
{
    mp::wstring name;
    std::uint64_t count = 0;
    bool ofObjects = false;
};

/// The names whose arrays are longest: some of those that hold objects, then some of the others, the longest first.
std::vector<ArrayCount> longestArrays(const vrx::JsonValue& root);

} // namespace json
