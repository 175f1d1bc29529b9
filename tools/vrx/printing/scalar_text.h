#pragma once

#include "vrx_api/json/json_value.h"

#include <string>

namespace printing
{

/// The text of a value that is no container. A double is as short as it comes back exactly, and never looks like an
/// integer; one that is not finite, which a binary form can hold, is NaN, Infinity or -Infinity.
std::string scalarText(const vrx::JsonValue& value);

/// The same, with `[...]` and `{...}` for containers and a long string shortened: for lines of text.
std::string briefText(const vrx::JsonValue& value);

/// A string's first units, how many fit, without half of a pair.
mp::wstring_view beginningOf(mp::wstring_view text, std::size_t most);

} // namespace printing
