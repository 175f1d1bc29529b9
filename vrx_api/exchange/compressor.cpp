#include "vrx_api/exchange/compressor.h"

#include "kolt/log.h"

#include <zlib.h>

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace vrx
{

namespace
{

constexpr int kGzipWindow = 15 + 16;
constexpr int kAnyWindow = 15 + 32;
constexpr int kMemoryLevel = 8;
constexpr std::uint64_t kSmallestStream = 3;

class Deflater
{
public:
    explicit Deflater(int level)
    {
        if (deflateInit2(&m_stream, level, Z_DEFLATED, kGzipWindow, kMemoryLevel, Z_DEFAULT_STRATEGY) != Z_OK)
        {
            throw std::runtime_error("deflate init failed");
        }
    }
    Deflater(const Deflater&) = delete;
    Deflater& operator=(const Deflater&) = delete;
    ~Deflater() { deflateEnd(&m_stream); }

    z_stream& stream() { return m_stream; }

private:
    z_stream m_stream{};
};

class Inflater
{
public:
    Inflater()
    {
        if (inflateInit2(&m_stream, kAnyWindow) != Z_OK)
        {
            throw std::runtime_error("inflate init failed");
        }
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() { inflateEnd(&m_stream); }

    z_stream& stream() { return m_stream; }

private:
    z_stream m_stream{};
};

void setInput(z_stream& stream, const char* data, std::uint64_t size)
{
    if (size > std::numeric_limits<uInt>::max())
    {
        throw std::length_error("Data to compress or decompress must be below 4 GiB");
    }
    // zlib does not write through its input pointer, which lacks a const for the sake of old compilers.
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data)); // NOLINT
    stream.avail_in = static_cast<uInt>(size);
}

// Gives zlib up to `chunk` bytes behind what is written.
template <class Buffer>
void setOutput(z_stream& stream, Buffer& out, std::size_t written, std::uint64_t chunk)
{
    const std::uint64_t most = std::numeric_limits<uInt>::max();
    const auto size = static_cast<std::size_t>(std::min(chunk, most));
    if (out.size() < written + size)
    {
        out.resize(written + size);
    }
    stream.next_out = reinterpret_cast<Bytef*>(&out[written]); // NOLINT: zlib's bytes are unsigned
    stream.avail_out = static_cast<uInt>(size);
}

// A gzip stream ends with the size of its content modulo 2^32 (RFC 1952, section 2.3.1). It is only a hint: the bytes
// may lie, so that it is bounded by what deflate can reach at best, which is 1032 to 1 (zlib's technical notes), and
// for much memory by what models reach.
std::uint64_t expectedSize(const char* data, std::uint64_t size)
{
    constexpr std::uint64_t kBestRatio = 1032;
    constexpr std::uint64_t kUsualRatio = 32;
    constexpr std::uint64_t kMuchMemory = std::uint64_t{256} << 20;
    constexpr std::uint64_t kSmallestGzip = 18;
    const auto byte = [data](std::uint64_t at) { return std::uint64_t{static_cast<unsigned char>(data[at])}; };
    const std::uint64_t usual = std::max<std::uint64_t>(size * 2, 1);
    if (size < kSmallestGzip || byte(0) != 0x1F)
    {
        return usual;
    }
    const std::uint64_t told = byte(size - 4) | byte(size - 3) << 8 | byte(size - 2) << 16 | byte(size - 1) << 24;
    const std::uint64_t bound = std::min(size * kBestRatio, std::max(size * kUsualRatio, kMuchMemory));
    return told > bound ? usual : std::max<std::uint64_t>(told, 1);
}

template <class Buffer>
void deflateInto(Buffer& out, const char* data, std::uint64_t size, int level)
{
    Deflater deflater(level);
    z_stream& stream = deflater.stream();
    setInput(stream, data, size);
    const std::uint64_t chunk = size / 2 + 1024;
    std::size_t written = 0;
    do
    {
        setOutput(stream, out, written, chunk);
        deflate(&stream, Z_FINISH);
        written = static_cast<std::size_t>(reinterpret_cast<char*>(stream.next_out) - out.data()); // NOLINT
    } while (stream.avail_out == 0);
    out.resize(written);
}

template <class Buffer>
void inflateInto(Buffer& out, const char* data, std::uint64_t size)
{
    Inflater inflater;
    z_stream& stream = inflater.stream();
    setInput(stream, data, size);
    std::uint64_t chunk = expectedSize(data, size);
    std::size_t written = 0;
    int result = Z_OK;
    do
    {
        setOutput(stream, out, written, chunk);
        result = inflate(&stream, Z_FINISH);
        if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR)
        {
            throw std::runtime_error(stream.msg != nullptr ? stream.msg : zError(result));
        }
        written = static_cast<std::size_t>(reinterpret_cast<char*>(stream.next_out) - out.data()); // NOLINT
        chunk = std::max<std::uint64_t>(size * 2, 1);
    } while (result != Z_STREAM_END && stream.avail_out == 0);
    out.resize(written);
}

} // namespace

void Compressor::compress(Bytes& out, const char* data, std::uint64_t size, int level)
{
    kolt::trace();
    deflateInto(out, data, size, level);
}

void Compressor::compress(std::vector<char>& out, const char* data, std::uint64_t size, int level)
{
    kolt::trace();
    deflateInto(out, data, size, level);
}

void Compressor::decompress(Bytes& out, const char* data, std::uint64_t size)
{
    kolt::trace();
    inflateInto(out, data, size);
}

void Compressor::decompress(std::vector<char>& out, const char* data, std::uint64_t size)
{
    kolt::trace();
    inflateInto(out, data, size);
}

void Compressor::compress(std::string& out, const char* data, std::uint64_t size, int level)
{
    std::vector<char> bytes;
    compress(bytes, data, size, level);
    out.assign(bytes.begin(), bytes.end());
}

void Compressor::decompress(std::string& out, const char* data, std::uint64_t size)
{
    std::vector<char> bytes;
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
