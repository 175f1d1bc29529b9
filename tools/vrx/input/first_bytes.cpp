#include "input/first_bytes.h"

#include <zlib.h>

#include <algorithm>
#include <new>

namespace input
{

std::string firstPlainBytes(std::string_view compressed, std::size_t most)
{
    constexpr int kGzipOrZlib = 32 + MAX_WBITS;
    constexpr std::size_t kEnough = std::size_t{1} << 16U; // of the stream, for a few bytes
    std::string in(compressed.substr(0, std::min(compressed.size(), kEnough)));
    std::string plain(most, '\0');
    z_stream stream{};
    stream.next_in = reinterpret_cast<Bytef*>(in.data()); // NOLINT(*-reinterpret-cast): zlib's bytes are unsigned
    stream.avail_in = static_cast<uInt>(in.size());
    stream.next_out = reinterpret_cast<Bytef*>(plain.data()); // NOLINT(*-reinterpret-cast)
    stream.avail_out = static_cast<uInt>(plain.size());
    if (inflateInit2(&stream, kGzipOrZlib) != Z_OK)
    {
        throw std::bad_alloc();
    }
    inflate(&stream, Z_SYNC_FLUSH);
    plain.resize(plain.size() - stream.avail_out);
    inflateEnd(&stream);
    return plain;
}

} // namespace input
