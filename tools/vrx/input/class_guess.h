#pragma once

#include "mp/wide.h"
#include "vrx_api/json/json_value.h"

namespace input
{

/// The class whose binary form this most likely is, by the keys that only it has; empty for none. The form itself does
/// not tell its class.
mp::wstring_view guessedClass(const vrx::JsonValue& object);

} // namespace input
