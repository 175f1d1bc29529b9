#pragma once

#include <zlib.h>

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace test
{

/// What zlib makes of a stream: the data as far as it goes, the text of the error that ends it, if one does, and
/// whether the stream ends just where its bytes do.
struct Inflated
{
    std::string data;
    std::string error;
    bool isWhole = false;
};

constexpr int kRawWindow = -15;
constexpr int kZlibWindow = 15;
constexpr int kGzipWindow = 15 + 16;
constexpr int kAnyWindow = 15 + 32;

/// Inflates a stream by zlib called directly, at most up to the end of the stream.
inline Inflated plainInflate(const std::string& stream, int window = kAnyWindow)
{
    Inflated result;
    z_stream zlib{};
    inflateInit2(&zlib, window);
    std::string input = stream;
    zlib.next_in = reinterpret_cast<Bytef*>(input.data()); // NOLINT: zlib's bytes are unsigned
    zlib.avail_in = static_cast<uInt>(input.size());
    std::array<Bytef, 16384> chunk{};
    int code = Z_OK;
    do
    {
        zlib.next_out = chunk.data();
        zlib.avail_out = static_cast<uInt>(chunk.size());
        code = inflate(&zlib, Z_FINISH);
        result.data.append(chunk.data(), zlib.next_out);
    } while ((code == Z_OK || code == Z_BUF_ERROR) && zlib.avail_out == 0);
    if (code != Z_OK && code != Z_STREAM_END && code != Z_BUF_ERROR)
    {
        result.error = zlib.msg != nullptr ? zlib.msg : zError(code);
    }
    result.isWhole = code == Z_STREAM_END && zlib.avail_in == 0;
    inflateEnd(&zlib);
    return result;
}

/// Deflates by zlib called directly, in one of the three wrappers.
inline std::string plainDeflate(const std::string& data, int level, int window = kGzipWindow)
{
    z_stream zlib{};
    const int memoryLevel = 8;
    if (deflateInit2(&zlib, level, Z_DEFLATED, window, memoryLevel, Z_DEFAULT_STRATEGY) != Z_OK)
    {
        throw std::runtime_error("deflateInit2 failed");
    }
    std::string input = data;
    std::string out(deflateBound(&zlib, static_cast<uLong>(data.size())), '\0');
    zlib.next_in = reinterpret_cast<Bytef*>(input.data()); // NOLINT: zlib's bytes are unsigned
    zlib.avail_in = static_cast<uInt>(input.size());
    zlib.next_out = reinterpret_cast<Bytef*>(out.data()); // NOLINT
    zlib.avail_out = static_cast<uInt>(out.size());
    deflate(&zlib, Z_FINISH);
    out.resize(zlib.total_out);
    deflateEnd(&zlib);
    return out;
}

inline std::string littleEndian(std::uint64_t number)
{
    std::string bytes;
    for (const unsigned shift : {0U, 8U, 16U, 24U})
    {
        bytes.push_back(static_cast<char>(number >> shift & 0xFFU));
    }
    return bytes;
}

/// The last eight bytes of the gzip stream of the data: its checksum and its size.
inline std::string gzipTrailer(const std::string& data)
{
    const auto* const bytes = reinterpret_cast<const Bytef*>(data.data()); // NOLINT: zlib's bytes are unsigned
    return littleEndian(crc32(0, bytes, static_cast<uInt>(data.size()))) + littleEndian(data.size());
}

/// Whether a gzip stream without optional fields ends with the checksum and the size of the data.
inline bool tells(const std::string& stream, const std::string& data)
{
    const std::string trailer = gzipTrailer(data);
    return stream.size() > trailer.size() && stream[3] == 0 &&
           stream.compare(stream.size() - trailer.size(), trailer.size(), trailer) == 0;
}

/// Whether the library makes of a stream what zlib makes of it. libdeflate takes some streams besides that zlib refuses
/// for the tables of their codes, but none whose checksum or size is wrong.
inline bool isAsZlib(const Inflated& ours, const Inflated& plain, const std::string& stream)
{
    if (ours.error.empty() && !plain.error.empty())
    {
        return plain.error.find("check") == std::string::npos && tells(stream, ours.data);
    }
    return ours.error == plain.error && (!plain.error.empty() || ours.data == plain.data);
}

} // namespace test
