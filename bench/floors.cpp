#include "bench/floors.h"

#include "bench/steps.h"

#include <zlib.h>
#ifdef BENCH_LIBDEFLATE
#include <libdeflate.h>
#endif

#include <cstring>

namespace bench
{

namespace
{

using vrx::Bytes;

constexpr int kGzipWindow = 15 + 16;
constexpr int kMemoryLevel = 8;

void copy(const Bytes& in, Bytes& out)
{
    std::memcpy(out.data(), in.data(), in.size());
}

void setBuffers(z_stream& stream, const Bytes& in, Bytes& out)
{
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(in.data())); // NOLINT: zlib's input lacks a const
    stream.avail_in = static_cast<uInt>(in.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data()); // NOLINT: zlib's bytes are unsigned
    stream.avail_out = static_cast<uInt>(out.size());
}

template <int Level>
void bareDeflate(const Bytes& in, Bytes& out)
{
    z_stream stream{};
    deflateInit2(&stream, Level, Z_DEFLATED, kGzipWindow, kMemoryLevel, Z_DEFAULT_STRATEGY);
    setBuffers(stream, in, out);
    deflate(&stream, Z_FINISH);
    deflateEnd(&stream);
}

void bareInflate(const Bytes& in, Bytes& out)
{
    z_stream stream{};
    inflateInit2(&stream, kGzipWindow);
    setBuffers(stream, in, out);
    inflate(&stream, Z_FINISH);
    inflateEnd(&stream);
}

#ifdef BENCH_LIBDEFLATE
template <int Level>
void bareLibdeflate(const Bytes& in, Bytes& out)
{
    libdeflate_compressor* const compressor = libdeflate_alloc_compressor(Level);
    libdeflate_gzip_compress(compressor, in.data(), in.size(), out.data(), out.size());
    libdeflate_free_compressor(compressor);
}

void bareLibdeflateInflate(const Bytes& in, Bytes& out)
{
    libdeflate_decompressor* const decompressor = libdeflate_alloc_decompressor();
    std::size_t size = 0;
    libdeflate_gzip_decompress(decompressor, in.data(), in.size(), out.data(), out.size(), &size);
    libdeflate_free_decompressor(decompressor);
}
#endif

} // namespace

const std::vector<Floor>& floors()
{
    static const std::vector<Floor> kFloors = {
        {step::kCopy, &Road::binary, copy},
        {step::kCopyCompressed, &Road::compressed, copy},
        {step::kDeflate, &Road::binary, bareDeflate<6>},
        {step::kDeflateFast, &Road::binary, bareDeflate<1>},
        {step::kInflate, &Road::compressed, bareInflate},
#ifdef BENCH_LIBDEFLATE
        {step::kLibdeflate, &Road::binary, bareLibdeflate<6>},
        {step::kLibdeflateFast, &Road::binary, bareLibdeflate<1>},
        {step::kLibdeflateInflate, &Road::compressed, bareLibdeflateInflate},
#endif
    };
    return kFloors;
}

std::size_t roomForFloors(const Road& road)
{
    constexpr std::size_t kGzipFrame = 18;
    return deflateBound(nullptr, static_cast<uLong>(road.binary.size())) + kGzipFrame;
}

} // namespace bench
