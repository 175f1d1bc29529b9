#pragma once

#include "vrx_api/json/json_fwd.h"

namespace vrx
{

/// Reads one whole message from a stream. Throws `std::invalid_argument` when it is no JSON object.
void readMessage(wistream& stream, JsonDocument& document);

} // namespace vrx
