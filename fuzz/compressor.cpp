#include "vrx_api/exchange/compressor.h"

#include "fuzz/support.h"
#include "tests/support/plain_zlib.h"

using vrx::Bytes;
using vrx::Compressor;

namespace
{

void requireCrossed(const std::string& plain, int level)
{
    Bytes packed;
    Compressor::compress(packed, plain.data(), plain.size(), level);
    fuzz::require(Compressor::isCompressed(packed.data(), packed.size()));
    const test::Inflated unpacked = test::plainInflate(std::string(packed.data(), packed.size()));
    fuzz::require(unpacked.isWhole && unpacked.data == plain);
    Bytes same;
    Compressor::decompress(same, packed.data(), packed.size(), vrx::ReadRules::strict());
    fuzz::require(std::string(same.data(), same.size()) == plain);
}

} // namespace

// One level an input, and half of them as a part of data that is large enough for the fast way: a compressor costs more
// than what it does here.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(data), size); // NOLINT: the fuzzer's bytes are unsigned
    Compressor::isCompressed(input.data(), input.size());
    std::string plain = input;
    while (size % 2 == 1 && plain.size() < 4200)
    {
        plain += input + static_cast<char>(plain.size());
    }
    requireCrossed(plain, size % 4 < 2 ? -1 : 1);
    return 0;
}
