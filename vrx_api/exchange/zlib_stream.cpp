#include "vrx_api/exchange/zlib_stream.h"

#include <zlib.h>

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <string>

namespace vrx
{

namespace
{

constexpr int kGzipWindow = 15 + 16;
constexpr int kAnyWindow = 15 + 32;
constexpr int kMemoryLevel = 8;

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
    // zlib does not write through its input pointer, which lacks a const for the sake of old compilers.
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data)); // NOLINT
    stream.avail_in = static_cast<uInt>(size);
}

// Gives zlib the bytes behind what is written.
void setOutput(z_stream& stream, Bytes& out, std::size_t written)
{
    constexpr std::size_t kMost = std::numeric_limits<uInt>::max();
    stream.next_out = reinterpret_cast<Bytef*>(out.data() + written); // NOLINT: zlib's bytes are unsigned
    stream.avail_out = static_cast<uInt>(std::min(out.size() - written, kMost));
}

std::size_t writtenTo(const Bytes& out, const z_stream& stream)
{
    return static_cast<std::size_t>(reinterpret_cast<char*>(stream.next_out) - out.data()); // NOLINT
}

// Doubles the room, up to one byte behind the limit, which shows that there is more. The last step before the limit is
// the larger one, so that the old and the new room together stay near it.
void grow(Bytes& out, std::uint64_t least, std::uint64_t limit)
{
    const std::uint64_t wanted = std::max<std::uint64_t>(std::uint64_t{out.size()} * 2, least);
    const auto room = static_cast<std::size_t>(wanted > limit / 2 ? limit + 1 : wanted);
    out.reserve(room);
    out.resize(room);
}

} // namespace

void deflateByZlib(Bytes& out, const char* data, std::uint64_t size, int level)
{
    Deflater deflater(level);
    z_stream& stream = deflater.stream();
    setInput(stream, data, size);
    const auto chunk = static_cast<std::size_t>(size / 2 + 1024);
    std::size_t written = 0;
    do
    {
        out.resize(written + chunk);
        setOutput(stream, out, written);
        deflate(&stream, Z_FINISH);
        written = writtenTo(out, stream);
    } while (stream.avail_out == 0);
    out.resize(written);
}

void inflateByZlib(Bytes& out, const char* data, std::uint64_t size, const ReadRules& rules)
{
    const std::uint64_t limit = rules.plainBytes;
    Inflater inflater;
    z_stream& stream = inflater.stream();
    setInput(stream, data, size);
    std::size_t written = 0;
    int result = Z_OK;
    do
    {
        if (written == out.size())
        {
            grow(out, std::max<std::uint64_t>(size * 2, 1), limit);
        }
        setOutput(stream, out, written);
        result = inflate(&stream, Z_FINISH);
        if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR)
        {
            throw std::runtime_error(stream.msg != nullptr ? stream.msg : zError(result));
        }
        written = writtenTo(out, stream);
        if (written > limit)
        {
            throw std::length_error("Decompressed data is above the limit of " + std::to_string(limit) + " bytes");
        }
    } while (result != Z_STREAM_END && stream.avail_out == 0);
    if (rules.isStrict && (result != Z_STREAM_END || stream.avail_in != 0))
    {
        throw std::runtime_error(result != Z_STREAM_END ? "The compressed data was cut short"
                                                        : "Bytes stand behind the compressed data");
    }
    out.resize(written);
}

} // namespace vrx
