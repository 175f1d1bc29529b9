#include "vrx_api/exchange/fast_deflate.h"

#include <libdeflate.h>

#include <algorithm>
#include <array>
#include <memory>

namespace vrx
{

namespace
{

// Plain sizes below which zlib is done before libdeflate has its tables. Writing, 80 microseconds: its compressor is
// large enough for the system to give and take the pages of each one. Reading, 4 microseconds.
constexpr std::size_t kSmallToWrite = 4096;
constexpr std::size_t kSmallToRead = 1024;

struct Release
{
    void operator()(libdeflate_compressor* compressor) const { libdeflate_free_compressor(compressor); }
    void operator()(libdeflate_decompressor* decompressor) const { libdeflate_free_decompressor(decompressor); }
};

// A gzip header without optional fields begins so.
bool hasPlainHeader(const char* data, std::uint64_t size)
{
    constexpr std::array<char, 4> kPlain = {'\x1F', '\x8B', '\x08', '\x00'};
    return size >= kPlain.size() && std::equal(kPlain.begin(), kPlain.end(), data);
}

} // namespace

bool deflateByLibdeflate(Bytes& out, const char* data, std::uint64_t size, int level)
{
    constexpr int kZlibDefault = -1;
    constexpr int kDefaultEffort = 6;
    const int effort = level == kZlibDefault ? kDefaultEffort : level;
    if (size < kSmallToWrite || (effort != 1 && effort != kDefaultEffort))
    {
        return false;
    }
    const std::unique_ptr<libdeflate_compressor, Release> compressor(libdeflate_alloc_compressor(effort));
    if (compressor == nullptr)
    {
        return false;
    }
    const auto plain = static_cast<std::size_t>(size);
    out.clear();
    out.resize(libdeflate_gzip_compress_bound(compressor.get(), plain));
    out.resize(libdeflate_gzip_compress(compressor.get(), data, plain, out.data(), out.size()));
    return !out.empty();
}

bool inflateByLibdeflate(Bytes& out, const char* data, std::uint64_t size)
{
    if (out.size() < kSmallToRead || !hasPlainHeader(data, size))
    {
        return false;
    }
    const std::unique_ptr<libdeflate_decompressor, Release> decompressor(libdeflate_alloc_decompressor());
    if (decompressor == nullptr)
    {
        return false;
    }
    std::size_t taken = 0;
    // With no place for the size that came out, only a full buffer is a success.
    const libdeflate_result result = libdeflate_gzip_decompress_ex(
        decompressor.get(), data, static_cast<std::size_t>(size), out.data(), out.size(), &taken, nullptr);
    return result == LIBDEFLATE_SUCCESS && taken == size;
}

} // namespace vrx
