#pragma once

#include "vrx_api/json/fields.h"
#include "vrx_api/json/json_text_io.h"

namespace vrx
{

/// Reads one whole message from a stream. Throws `std::invalid_argument` when it is no JSON object, and what
/// `JsonTextIO::read` by these rules throws.
void readMessage(wistream& stream, JsonDocument& document, const ReadRules& rules = {});

/// Writes a message that is no more than its description. Throws as `JsonTextIO::write` does.
template <class T>
void writeMessage(const T& message, wostream& stream)
{
    JsonDocument document;
    writeMembers(message, document, document.GetAllocator());
    JsonTextIO::write(stream, document, true);
}

} // namespace vrx
