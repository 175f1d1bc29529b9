#include "fuzz/support.h"
#include "tests/support/helpers.h"
#include "tests/support/plain_zlib.h"
#include "vrx_api/exchange/compressor.h"

using vrx::Bytes;
using vrx::Compressor;

namespace
{

// The library's way with a stream, told as zlib's.
test::Inflated decompressed(const std::string& stream, const vrx::ReadRules& rules)
{
    // A buffer of the exact size, so that the sanitizer sees what is read behind the end.
    const std::vector<char> exact(stream.data(), stream.data() + stream.size());
    Bytes out;
    try
    {
        Compressor::decompress(out, exact.data(), exact.size(), rules);
    }
    catch (const std::runtime_error& error)
    {
        return {"", error.what()};
    }
    return {std::string(out.data(), out.size()), ""};
}

void requireSame(const std::string& stream)
{
    const test::Inflated plain = test::plainInflate(stream);
    fuzz::require(test::isAsZlib(decompressed(stream, {}), plain, stream));
    const std::uint64_t size = plain.data.size();
    if (plain.error.empty() && size > 0)
    {
        const std::uint64_t limit = size - stream.size() % 2;
        fuzz::require((test::thrownBy<std::length_error>([&] { decompressed(stream, {limit}); }) == "nothing") ==
                      (limit == size));
    }
}

} // namespace

// The input as a whole stream; then as the blocks of a sound one, behind a block that makes it large enough for the
// fast way and gives its matches something to copy.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(data), size); // NOLINT: the fuzzer's bytes are unsigned
    if (!input.empty())
    {
        requireSame(input);
    }
    static const std::string header = test::bytes("1F8B0800000000000003");
    static const std::string stored = [] {
        std::string block = test::bytes("00 0004 FFFB");
        for (unsigned i = 0; i < 0x400; ++i)
        {
            block.push_back(static_cast<char>((i * i) >> 4U));
        }
        return block;
    }();
    const std::string body = stored + input;
    const test::Inflated plain = test::plainInflate(body, test::kRawWindow);
    if (plain.error.empty())
    {
        requireSame(header + body + test::gzipTrailer(plain.data));
    }
    else
    {
        requireSame(header + body + std::string(4, '\0') + test::littleEndian(plain.data.size()));
    }
    return 0;
}
