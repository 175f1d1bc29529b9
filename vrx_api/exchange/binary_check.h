#pragma once

#include "vrx_api/json/binary_value.h"
#include "vrx_api/json/read_rules.h"

#include <cstdint>

namespace vrx
{

/// What is said of bytes that are no binary form, by all who read it.
namespace binary_failure
{
constexpr const char* kNoType = "Failed to parse all bytes of type";
constexpr const char* kUnknownType = "Unknown value type";
constexpr const char* kNoNumber = "Failed to read all the number of bytes";
constexpr const char* kNoString = "Failed to read all the bytes of string";
constexpr const char* kNoArray = "Failed to read all the bytes of array";
constexpr const char* kNameNoString = "The name of a member is no string";
constexpr const char* kBytesBehind = "Bytes stand behind the value";
} // namespace binary_failure

/// The value at the front of the bytes, which is whole, as is all within it, and keeps the rules. Throws as
/// `JsonBinaryIO::read` does, but for the most children that a tree can have. The bytes begin at an even address.
BinaryValue checkBinary(const char* data, std::uint64_t size, const ReadRules& rules = {});

} // namespace vrx
