#pragma once

#include "mp/narrow.h"
#include "mp/serializable.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/json_value.h"

#include <string>
#include <string_view>

namespace test
{

/// Widens ASCII.
inline mp::wstring wide(std::string_view ascii)
{
    return mp::wstring(ascii.begin(), ascii.end());
}

/// The document of a JSON text in ASCII; null when it is none.
inline vrx::JsonDocument parsed(std::string_view text)
{
    mp::wistringstream stream(wide(text));
    vrx::JsonDocument document;
    vrx::JsonTextIO::read(stream, document);
    return document;
}

inline std::string textOf(const vrx::JsonDocument& document, bool pretty = false)
{
    mp::wostringstream stream;
    vrx::JsonTextIO::write(stream, document, pretty);
    return mp::toNarrow(stream.str());
}

/// The compact text that an object writes.
inline std::string written(const vrx::IJsonObject& object)
{
    vrx::JsonDocument document;
    object.writeObject(document, document.GetAllocator());
    return textOf(document);
}

/// The same of a whole message, which itself puts white space between.
inline std::string written(const mp::ISerializable& message)
{
    mp::wostringstream stream;
    message.writeObject(stream);
    return textOf(parsed(mp::toNarrow(stream.str())));
}

/// Reads an object from a text in ASCII into what it is already.
inline void readText(vrx::IJsonObject& object, std::string_view text)
{
    const vrx::JsonDocument document = parsed(text);
    object.readObject(document);
}

/// The same for a whole message.
inline void readText(mp::ISerializable& message, std::string_view text)
{
    mp::wistringstream stream(wide(text));
    message.readObject(stream);
}

template <class T>
T readFrom(std::string_view text)
{
    T object;
    readText(object, text);
    return object;
}

} // namespace test
