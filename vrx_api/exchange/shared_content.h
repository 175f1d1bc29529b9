#pragma once

#include "mp/shared_buffer.h"
#include "vrx_api/exchange/bytes.h"

namespace vrx
{

/// The content of a shared memory buffer, decompressed if it says that it is compressed. Throws as both do.
Bytes plainContent(const mp::SharedBuffer<char>& buffer);

} // namespace vrx
