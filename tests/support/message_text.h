#pragma once

#include "mp/serializable.h"
#include "tests/support/json_text.h"

#include <string>
#include <string_view>

namespace test
{

/// What a whole message writes, as it stands on the stream.
inline std::string sentText(const mp::ISerializable& message)
{
    mp::wostringstream stream;
    message.writeObject(stream);
    return mp::toNarrow(stream.str());
}

/// The same without white space.
inline std::string sent(const mp::ISerializable& message)
{
    return textOf(parsed(sentText(message)));
}

/// Reads a whole message from a text in ASCII into what it is already.
inline void receive(mp::ISerializable& message, std::string_view text)
{
    mp::wistringstream stream(wide(text));
    message.readObject(stream);
}

/// The text of the `std::invalid_argument` that the action throws; empty when it throws none.
template <class Action>
std::string refusal(Action action)
{
    try
    {
        action();
    }
    catch (const std::invalid_argument& error)
    {
        return error.what();
    }
    return {};
}

} // namespace test
