#include "vrx_api/exchange/compressor.h"

#include "fuzz/support.h"
#include "tests/support/plain_zlib.h"

using vrx::Bytes;
using vrx::Compressor;

namespace
{

void requireCrossed(const std::string& plain)
{
    for (const int level : {-1, 1})
    {
        Bytes packed;
        Compressor::compress(packed, plain.data(), plain.size(), level);
        fuzz::require(Compressor::isCompressed(packed.data(), packed.size()));
        const test::Inflated unpacked = test::plainInflate(std::string(packed.data(), packed.size()));
        fuzz::require(unpacked.error.empty() && unpacked.data == plain);
        Bytes same;
        Compressor::decompress(same, packed.data(), packed.size());
        fuzz::require(std::string(same.data(), same.size()) == plain);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(data), size); // NOLINT: the fuzzer's bytes are unsigned
    Compressor::isCompressed(input.data(), input.size());
    requireCrossed(input);
    // Again as a part of data that is large enough for the fast way.
    std::string larger = input;
    while (larger.size() < 4200)
    {
        larger += input + static_cast<char>(larger.size());
    }
    requireCrossed(larger);
    return 0;
}
