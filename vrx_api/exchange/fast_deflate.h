#pragma once

#include "vrx_api/exchange/bytes.h"

#include <cstdint>

namespace vrx
{

/// Replaces `out` by the gzip stream that libdeflate makes of the data. False when that is zlib's work: small data,
/// levels other than 1 and the default, and no memory for a compressor.
bool deflateByLibdeflate(Bytes& out, const char* data, std::uint64_t size, int level);

/// Fills `out` with the content of a gzip stream, which must have just that size. False when that is zlib's work: small
/// data, other wrappers, optional fields in the header, and all that is not one whole and sound stream. `out` then has
/// its size still, but unset content.
///
/// With the right checksum and size, libdeflate takes a few streams that zlib refuses: unused codes of RFC 1951 as
/// their neighbours, and codes that are incomplete. No compressor makes them, and no damage does but by chance.
bool inflateByLibdeflate(Bytes& out, const char* data, std::uint64_t size);

} // namespace vrx
