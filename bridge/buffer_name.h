#pragma once

#include "bridge/bridge_export.h"
#include "mp/wide.h"

namespace vrx::bridge
{

/// Whether shared memory of this name is one of this library's buffers: the name is a UUID of version 4 in lower case
/// (RFC 9562). Others belong to other programs, whatever a message says.
VRX_BRIDGE bool isBufferName(const mp::wstring& name);

} // namespace vrx::bridge
