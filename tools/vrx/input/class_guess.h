#pragma once

#include "mp/wide.h"
#include "vrx_api/json/json_value.h"

#include <vector>

namespace input
{

/// The class whose binary form this most likely is, by the keys that only it has; empty for none. The form itself does
/// not tell its class.
mp::wstring_view guessedClass(const vrx::JsonValue& object);
mp::wstring_view guessedClass(const std::vector<mp::wstring>& keys);

} // namespace input
