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

// A strict reader takes what zlib ends with the last byte, and what libdeflate alone takes.
void requireSameStrictly(const std::string& stream, const test::Inflated& ours, const test::Inflated& plain)
{
    const test::Inflated strictly = decompressed(stream, vrx::ReadRules::strict());
    const bool isWhole = ours.error.empty() && (plain.isWhole || !plain.error.empty());
    fuzz::require(strictly.error.empty() == isWhole && (!isWhole || strictly.data == ours.data));
}

void requireSame(const std::string& stream)
{
    const test::Inflated plain = test::plainInflate(stream);
    const test::Inflated ours = decompressed(stream, {});
    fuzz::require(test::isAsZlib(ours, plain, stream));
    requireSameStrictly(stream, ours, plain);
    const std::uint64_t size = plain.data.size();
    if (plain.error.empty() && size > 0)
    {
        const std::uint64_t limit = size - stream.size() % 2;
        fuzz::require((test::thrownBy<std::length_error>([&] {
                           decompressed(stream, vrx::ReadRules::upToPlainBytes(limit));
                       }) == "nothing") == (limit == size));
    }
}

// The blocks as those of a sound stream, behind a block that makes it large enough for the fast way and gives its
// matches something to copy.
std::string streamOf(const std::string& blocks)
{
    static const std::string header = test::bytes("1F8B0800000000000003");
    static const std::string stored = [] {
        std::string block = test::bytes("00 0004 FFFB");
        for (unsigned i = 0; i < 0x400; ++i)
        {
            block.push_back(static_cast<char>((i * i) >> 4U));
        }
        return block;
    }();
    const std::string body = stored + blocks;
    const test::Inflated plain = test::plainInflate(body, test::kRawWindow);
    return header + body +
           (plain.error.empty() ? test::gzipTrailer(plain.data)
                                : std::string(4, '\0') + test::littleEndian(plain.data.size()));
}

} // namespace

// A stream as it is, when it begins as one; otherwise blocks, whose stream is cut now and then.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(data), size); // NOLINT: the fuzzer's bytes are unsigned
    if (!input.empty() && (input.front() == '\x1F' || input.front() == '\x78'))
    {
        requireSame(input);
        return 0;
    }
    const std::string stream = streamOf(input);
    requireSame(size % 4 == 3 ? stream.substr(0, stream.size() - size / 4 % 16) : stream);
    return 0;
}
