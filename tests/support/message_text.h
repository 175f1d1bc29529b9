#pragma once

#include "mp/narrow.h"
#include "mp/serializable.h"

#include <stdexcept>
#include <string>

namespace test
{

/// What a whole message writes, as it stands on the stream.
inline std::string sentText(const mp::ISerializable& message)
{
    mp::wostringstream stream;
    message.writeObject(stream);
    return mp::toNarrow(stream.str());
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
