#pragma once

#include "vrx_api/exchange/bytes.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/json/read_rules.h"
#include "vrx_api/vrx_api_export.h"

#include <cstdint>
#include <istream>
#include <ostream>
#include <vector>

namespace vrx
{

/// The binary form of JSON: tagged little-endian values, in which no number is printed and no string escaped, so that a
/// double comes back bit for bit. Neither direction recurses, whatever the depth of the tree. Any number of threads may
/// use it at once, each with its own documents.
class VRX_API JsonBinaryIO
{
public:
    JsonBinaryIO() = delete;

    /// Writes the binary form of the value, and gives the stream back.
    static std::ostream& write(std::ostream& stream, const JsonValue& value);

    /// Decodes one value; bytes behind it stay in the stream, which must have its whole content at hand, as a string
    /// stream has. Strings are copied to the allocator. Throws `std::length_error` for truncated data and
    /// `std::invalid_argument` for an unknown tag; the value then holds what had been decoded so far.
    static std::istream& read(std::istream& stream, JsonValue& value, JsonAllocator& allocator);

    /// Replaces the bytes by the binary form of the value.
    static void write(Bytes& bytes, const JsonValue& value);
    static void write(std::vector<char>& bytes, const JsonValue& value);

    /// Decodes the value at the front of the bytes; throws as the reading of a stream does.
    static void read(const char* data, std::uint64_t size, JsonValue& value, JsonAllocator& allocator);

    /// The same for bytes that keep the rules. The others throw before a value is made: `std::length_error` above a
    /// limit, `std::invalid_argument` for what a strict reader refuses.
    static void read(const char* data, std::uint64_t size, JsonValue& value, JsonAllocator& allocator,
                     const ReadRules& rules);

    /// Replaces the bytes by the binary form of an object, as its `writeObject` and the function above make it
    /// together, but without a tree in between. The object and all within it must not change meanwhile, not by a
    /// `writeObject` either. Throws what `writeObject` throws.
    static void write(Bytes& bytes, const IJsonObject& object);

    /// Has an object read its binary form, in the same way. The bytes are checked as a whole, and held against the
    /// rules, before the object takes anything.
    static void read(const char* data, std::uint64_t size, IJsonObject& object, const ReadRules& rules = {});
};

} // namespace vrx
