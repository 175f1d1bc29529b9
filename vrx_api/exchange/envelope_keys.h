#pragma once

#include "vrx_api/json/key.h"

namespace vrx
{

/// The keys of an envelope.
inline constexpr Key kEnvelopeName = WIDE("exchange_object_name");
inline constexpr Key kEnvelopeBinary = WIDE("binary");
inline constexpr Key kEnvelopeData = WIDE("exchange_object_data");

/// The key by which an object that crosses as text names shared memory of its own.
inline constexpr Key kObjectBufferName = WIDE("shared_acis_buffer_name");

} // namespace vrx
