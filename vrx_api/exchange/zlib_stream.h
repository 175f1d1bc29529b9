#pragma once

#include "vrx_api/exchange/bytes.h"
#include "vrx_api/json/read_rules.h"

#include <cstdint>

namespace vrx
{

/// Replaces `out` by the gzip stream that zlib makes of the data. The data must be below 4 GiB.
void deflateByZlib(Bytes& out, const char* data, std::uint64_t size, int level);

/// Replaces `out` by what zlib makes of a gzip or zlib stream, which must be below 4 GiB. The size that `out` has,
/// which must be within the rules' limit, is the first that is tried; more is taken as the data comes.
void inflateByZlib(Bytes& out, const char* data, std::uint64_t size, const ReadRules& rules);

} // namespace vrx
