#pragma once

#include "vrx_api/exchange/bytes.h"
#include "vrx_api/json/read_rules.h"
#include "vrx_api/vrx_api_export.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vrx
{

/// Compression of the binary form (RFC 1951 data): gzip streams (RFC 1952) are written, gzip and zlib (RFC 1950)
/// streams are read. zlib sets the rules; where the library is built with libdeflate, that does most of the work, and
/// takes some damaged streams that zlib refuses, when their checksum and size still fit the content. The data of one
/// call must be below 4 GiB; otherwise `std::length_error` is thrown. Any number of threads may use it at once.
class VRX_API Compressor
{
public:
    Compressor() = delete;

    /// Replaces `out` by the gzip stream of the data; level -1 is zlib's default. Throws `std::runtime_error`.
    static void compress(Bytes& out, const char* data, std::uint64_t size, int level);
    static void compress(std::vector<char>& out, const char* data, std::uint64_t size, int level);
    static void compress(std::string& out, const char* data, std::uint64_t size, int level);

    /// Replaces `out` by the plain data. A stream that was cut short gives what could be decompressed; a damaged one
    /// throws `std::runtime_error`, as does for a strict reader one without its end or with bytes behind it, and more
    /// plain data than the limit throws `std::length_error`. Memory is spent for the data that comes, whatever size the
    /// stream tells.
    static void decompress(Bytes& out, const char* data, std::uint64_t size, const ReadRules& rules = {});
    static void decompress(std::vector<char>& out, const char* data, std::uint64_t size);
    static void decompress(std::string& out, const char* data, std::uint64_t size);

    /// True when the data begins as a zlib or a gzip stream does.
    static bool isCompressed(const char* data, std::uint64_t size);
};

} // namespace vrx
