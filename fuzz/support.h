#pragma once

#include "mp/narrow.h"
#include "vrx_api/exchange/bytes.h"
#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/json_value.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace fuzz
{

/// Makes the input a finding when the condition does not hold.
inline void require(bool condition)
{
    if (!condition)
    {
        std::abort();
    }
}

/// The input as wide text: UTF-8, so that all characters are within reach.
inline mp::wstring textOf(const std::uint8_t* data, std::size_t size)
{
    return mp::toWide(std::string(data, data + size));
}

/// Decodes the binary form; false when it is refused as it should be.
inline bool decodes(const char* data, std::size_t size, vrx::JsonDocument& document)
{
    try
    {
        vrx::JsonBinaryIO::read(data, size, document, document.GetAllocator());
        return true;
    }
    catch (const std::length_error&)
    {
        return false;
    }
    catch (const std::invalid_argument&)
    {
        return false;
    }
}

inline vrx::Bytes encoded(const vrx::JsonValue& value)
{
    vrx::Bytes bytes;
    vrx::JsonBinaryIO::write(bytes, value);
    return bytes;
}

inline vrx::Bytes encoded(const vrx::IJsonObject& object)
{
    vrx::JsonDocument document;
    object.writeObject(document, document.GetAllocator());
    return encoded(document);
}

/// Parses a text; false when it is no JSON.
inline bool parses(const mp::wstring& text, vrx::JsonDocument& document)
{
    mp::wistringstream stream(text);
    vrx::JsonTextIO::read(stream, document);
    return !document.HasParseError();
}

/// The text of a tree, or nothing when there is none: a number may be beyond the doubles, a name no string.
inline std::optional<mp::wstring> textOf(const vrx::JsonDocument& tree, bool pretty = false)
{
    mp::wostringstream stream;
    try
    {
        vrx::JsonTextIO::write(stream, tree, pretty);
    }
    catch (const std::runtime_error&)
    {
        return std::nullopt;
    }
    return stream.str();
}

/// What limits count: the values of a tree, and its depth.
inline vrx::ReadRules extentOf(const vrx::JsonValue& tree)
{
    vrx::ReadRules extent;
    extent.values = 0;
    extent.depth = 0;
    std::vector<std::pair<const vrx::JsonValue*, std::uint64_t>> open = {{&tree, 1}};
    while (!open.empty())
    {
        const auto [value, depth] = open.back();
        open.pop_back();
        ++extent.values;
        if (value->IsObject() || value->IsArray())
        {
            extent.depth = std::max(extent.depth, depth);
        }
        if (value->IsObject())
        {
            for (const auto& member : value->GetObject())
            {
                open.emplace_back(&member.name, depth + 1);
                open.emplace_back(&member.value, depth + 1);
            }
        }
        else if (value->IsArray())
        {
            for (const auto& element : value->GetArray())
            {
                open.emplace_back(&element, depth + 1);
            }
        }
    }
    return extent;
}

/// What a reader says of the rules: each takes them and throws.
enum class EVerdict
{
    Taken,
    AboveLimit,
    Refused,
};

template <class Read>
EVerdict verdictOf(const Read& read, const vrx::ReadRules& rules)
{
    try
    {
        read(rules);
        return EVerdict::Taken;
    }
    catch (const std::length_error&)
    {
        return EVerdict::AboveLimit;
    }
    catch (const std::invalid_argument&)
    {
        return EVerdict::Refused;
    }
}

/// A whole value is taken at just its limits, and not below either.
template <class Read>
void requireLimits(const vrx::JsonValue& tree, const Read& read)
{
    const vrx::ReadRules extent = extentOf(tree);
    require(verdictOf(read, extent) == EVerdict::Taken);
    vrx::ReadRules less = extent;
    --less.values;
    require(verdictOf(read, less) == EVerdict::AboveLimit);
    less = extent;
    if (less.depth > 0)
    {
        --less.depth;
        require(verdictOf(read, less) == EVerdict::AboveLimit);
    }
}

/// The binary form that an exchange object writes once it has taken one: a tree of any shape, but a class may throw
/// `std::invalid_argument`.
inline vrx::Bytes crossed(const vrx::IExchangeObject& prototype, const vrx::JsonValue& tree)
{
    const auto object = prototype.clone();
    object->readObject(tree);
    return encoded(*object);
}

inline vrx::Bytes crossed(const vrx::IExchangeObject& prototype, const vrx::Bytes& form)
{
    vrx::JsonDocument document;
    require(decodes(form.data(), form.size(), document));
    return crossed(prototype, document);
}

/// Sends an exchange object over and over. Bytes that are no binary form are refused, and so may be a tree's kind.
inline void crossBinary(const vrx::IExchangeObject& prototype, const char* data, std::size_t size)
{
    vrx::JsonDocument document;
    if (!decodes(data, size, document))
    {
        return;
    }
    // Some keys are only read or only written, and a null can come back as an object; then nothing changes any more.
    vrx::Bytes first;
    try
    {
        first = crossed(prototype, document);
    }
    catch (const std::invalid_argument&)
    {
        return;
    }
    const vrx::Bytes second = crossed(prototype, first);
    require(crossed(prototype, second).size() == second.size());
}

/// Has a whole message read a text; what it then writes must be read, too.
template <class Message>
void crossText(const std::uint8_t* data, std::size_t size)
{
    mp::wstringstream written;
    try
    {
        mp::wistringstream stream(textOf(data, size));
        Message message;
        message.readObject(stream);
        message.writeObject(written);
    }
    catch (const std::invalid_argument&)
    {
        return;
    }
    catch (const std::runtime_error&)
    {
        // A number of the text was beyond the doubles.
        return;
    }
    Message again;
    again.readObject(written);
}

} // namespace fuzz
