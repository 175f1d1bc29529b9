#include "vrx_api/exchange/compressor.h"

#include "kolt/log.h"
#include "vrx_api/exchange/fast_deflate.h"
#include "vrx_api/exchange/zlib_stream.h"

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>

namespace vrx
{

namespace
{

constexpr bool kHasLibdeflate = VRX_API_HAS_LIBDEFLATE != 0;
constexpr std::uint64_t kSmallestStream = 3;

// zlib counts in 32 bits.
void requireReach(std::uint64_t size)
{
    if (size > std::numeric_limits<std::uint32_t>::max())
    {
        throw std::length_error("Data to compress or decompress must be below 4 GiB");
    }
}

// A gzip stream ends with the size of its content modulo 2^32 (RFC 1952, section 2.3.1). It is only a hint: the bytes
// may lie, so that it is bounded by what models reach; what grows more is rare, and comes piece by piece.
std::uint64_t expectedSize(const char* data, std::uint64_t size)
{
    constexpr std::uint64_t kUsualRatio = 64;
    constexpr std::uint64_t kSmallestGzip = 18;
    const auto byte = [data](std::uint64_t at) { return std::uint64_t{static_cast<unsigned char>(data[at])}; };
    if (size < kSmallestGzip || byte(0) != 0x1F)
    {
        return size * 2;
    }
    const std::uint64_t told = byte(size - 4) | byte(size - 3) << 8 | byte(size - 2) << 16 | byte(size - 1) << 24;
    return told > size * kUsualRatio ? size * 2 : told;
}

// The room that a stream is expected to fill; none where the system does not have that much.
void makeRoom(Bytes& out, std::uint64_t size)
{
    out.clear();
    try
    {
        out.resize(static_cast<std::size_t>(size));
    }
    catch (const std::bad_alloc&)
    {
        out.clear();
    }
}

} // namespace

void Compressor::compress(Bytes& out, const char* data, std::uint64_t size, int level)
{
    kolt::trace();
    requireReach(size);
    if constexpr (kHasLibdeflate)
    {
        if (deflateByLibdeflate(out, data, size, level))
        {
            return;
        }
    }
    deflateByZlib(out, data, size, level);
}

void Compressor::compress(std::vector<char>& out, const char* data, std::uint64_t size, int level)
{
    Bytes bytes;
    compress(bytes, data, size, level);
    out.assign(bytes.begin(), bytes.end());
}

void Compressor::compress(std::string& out, const char* data, std::uint64_t size, int level)
{
    Bytes bytes;
    compress(bytes, data, size, level);
    out.assign(bytes.begin(), bytes.end());
}

void Compressor::decompress(Bytes& out, const char* data, std::uint64_t size, const ReadRules& rules)
{
    kolt::trace();
    requireReach(size);
    const std::uint64_t expected = expectedSize(data, size);
    makeRoom(out, std::min(expected, rules.plainBytes));
    if constexpr (kHasLibdeflate)
    {
        if (out.size() == expected && inflateByLibdeflate(out, data, size))
        {
            return;
        }
    }
    inflateByZlib(out, data, size, rules);
}

void Compressor::decompress(std::vector<char>& out, const char* data, std::uint64_t size)
{
    Bytes bytes;
    decompress(bytes, data, size);
    out.assign(bytes.begin(), bytes.end());
}

void Compressor::decompress(std::string& out, const char* data, std::uint64_t size)
{
    Bytes bytes;
    decompress(bytes, data, size);
    out.assign(bytes.begin(), bytes.end());
}

bool Compressor::isCompressed(const char* data, std::uint64_t size)
{
    if (data == nullptr || size < kSmallestStream)
    {
        return false;
    }
    const auto first = static_cast<unsigned char>(data[0]);
    const auto second = static_cast<unsigned char>(data[1]);
    const bool zlibHeader = first == 0x78 && (second == 0x9C || second == 0x01 || second == 0xDA || second == 0x5E);
    const bool gzipHeader = first == 0x1F && second == 0x8B;
    return zlibHeader || gzipHeader;
}

} // namespace vrx
