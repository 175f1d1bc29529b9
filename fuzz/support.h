#pragma once

#include "mp/narrow.h"
#include "vrx_api/exchange/bytes.h"
#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/exchange/json_binary_io.h"

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <stdexcept>

namespace fuzz
{

/// What is no exception but must hold; otherwise the input is a finding.
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

/// Has an exchange object take a tree in its binary form, and another take what the first writes. Forms that are no
/// tree are refused; a tree of any shape is not.
inline void crossBinary(const vrx::IExchangeObject& prototype, const char* data, std::size_t size)
{
    vrx::JsonDocument document;
    if (!decodes(data, size, document))
    {
        return;
    }
    const auto object = prototype.clone();
    object->readObject(document);
    const vrx::Bytes written = encoded(*object);
    vrx::JsonDocument again;
    require(decodes(written.data(), written.size(), again));
    const auto other = prototype.clone();
    other->readObject(again);
    // Some keys are only read or only written, but what has crossed once has its shape.
    require(encoded(*other).size() <= written.size());
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
    Message again;
    again.readObject(written);
}

} // namespace fuzz
