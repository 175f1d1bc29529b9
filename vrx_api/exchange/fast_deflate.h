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
/// When the checksum and the size are right, libdeflate takes some streams that zlib refuses for the tables of their
/// codes: repeats of lengths beyond the last code, incomplete codes, and codes that RFC 1951 leaves unused. A flipped
/// bit that changes none of the data can make such a stream.
bool inflateByLibdeflate(Bytes& out, const char* data, std::uint64_t size);

} // namespace vrx
