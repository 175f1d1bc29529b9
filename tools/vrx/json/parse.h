#pragma once

#include "mp/wide.h"
#include "vrx_api/json/json_value.h"

#include <cstdint>

namespace json
{

/// The tree of a JSON text. Throws tool::InputError with the line and the column at which it is none.
vrx::JsonDocument parse(const mp::wstring& text);

/// True when the bytes begin as the binary form of an object or an array does, as no text can.
bool isBinaryForm(const char* bytes, std::uint64_t size);

/// The tree of a binary form. Throws tool::InputError.
vrx::JsonDocument parseBinaryForm(const char* bytes, std::uint64_t size);

} // namespace json
