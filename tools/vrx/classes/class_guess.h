#pragma once

#include "mp/wide.h"
#include "vrx_api/json/json_value.h"

#include <vector>

namespace classes
{

/// The wire name of the class whose binary form this most likely is, by its keys; empty for none. The form itself does
/// not tell its class, and some classes have the same first keys.
mp::wstring guessed(const vrx::JsonValue& object);
mp::wstring guessed(const std::vector<mp::wstring>& keys);

} // namespace classes
