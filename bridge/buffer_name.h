#pragma once

#include "bridge/bridge_export.h"
#include "mp/wide.h"

#include <cstddef>
#include <string_view>

namespace vrx::bridge
{

/// The characters of a buffer's name.
constexpr std::size_t kBufferNameSize = 36;

/// Whether shared memory of this name is one of this library's buffers: the name is a UUID of version 4 in lower case
/// (RFC 9562). Others belong to other programs, whatever a message says.
VRX_BRIDGE bool isBufferName(mp::wstring_view name);
VRX_BRIDGE bool isBufferName(std::string_view narrowName);

} // namespace vrx::bridge
