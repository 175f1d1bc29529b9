#pragma once

#include "vrx_api/json/json_read.h"

namespace vrx
{

/// The text under a key that must be there. Throws `std::invalid_argument` with the given message when it is missing or
/// no string. The text lives as long as the value.
wstring_view requiredText(const JsonValue& object, Key key, const char* message);

/// Throws `std::invalid_argument` with the given message when the value is no object.
void requireObject(const JsonValue& value, const char* message);

} // namespace vrx
