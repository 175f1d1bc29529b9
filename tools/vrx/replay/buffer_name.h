#pragma once

#include "mp/wide.h"

namespace replay
{

/// The message with another name of its buffer; all else stays as it is, unit for unit. A message that does not name
/// the buffer comes back unchanged.
mp::wstring withBufferName(const mp::wstring& message, const mp::wstring& before, const mp::wstring& after);

} // namespace replay
