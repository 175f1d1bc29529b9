#pragma once

#include "mp/narrow.h"
#include "vrx_api/exchange/bytes.h"
#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_value.h"

#include <cstdint>
#include <cstdlib>
#include <stdexcept>

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

/// The binary form that an exchange object writes once it has taken one, which must be a tree of any shape.
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

/// Sends an exchange object over and over. Bytes that are no binary form are refused; a tree of any shape is not.
inline void crossBinary(const vrx::IExchangeObject& prototype, const char* data, std::size_t size)
{
    vrx::JsonDocument document;
    if (!decodes(data, size, document))
    {
        return;
    }
    // Some keys are only read or only written, and a null can come back as an object; then nothing changes any more.
    const vrx::Bytes second = crossed(prototype, crossed(prototype, document));
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
