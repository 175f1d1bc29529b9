#pragma once

#include "mp/wide.h"
#include "vrx_api/json/json_value.h"

#include <string>
#include <string_view>
#include <vector>

namespace json
{

/// A place in a tree (RFC 6901): the names and places that lead to it.
using Pointer = std::vector<mp::wstring>;

/// The pointer of a text in UTF-8, which is empty or begins with a slash. Throws tool::UsageError.
Pointer pointerOf(const std::string& text);

/// The value to which a pointer leads, or null.
const vrx::JsonValue* resolve(const vrx::JsonValue& root, const Pointer& pointer);

/// Adds a name to a pointer's text, with its slash.
void appendPart(mp::wstring& pointer, mp::wstring_view name);

/// The same alone, safe to be printed.
std::string pointerPart(mp::wstring_view name);

} // namespace json
