#pragma once

#include "mp/wide.h"

#include <string_view>

namespace input
{

/// The text of a file: UTF-8, or UTF-16 of either byte order, each with a byte order mark or without one. Throws
/// tool::InputError for malformed UTF-8 and for half a unit; lone surrogates of UTF-16 are taken as they are.
mp::wstring textOfBytes(std::string_view bytes);

} // namespace input
