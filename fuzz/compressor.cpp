#include "vrx_api/exchange/compressor.h"

#include "fuzz/support.h"

using vrx::Bytes;
using vrx::Compressor;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(data, data + size);
    Compressor::isCompressed(input.data(), input.size());
    Bytes packed;
    Compressor::compress(packed, input.data(), input.size(), -1);
    std::string unpacked;
    Compressor::decompress(unpacked, packed.data(), packed.size());
    fuzz::require(unpacked == input);
    if (size == 0)
    {
        return 0;
    }
    std::string plain;
    try
    {
        Compressor::decompress(plain, input.data(), input.size());
    }
    catch (const std::runtime_error&)
    {
        return 0;
    }
    Bytes same;
    Compressor::decompress(same, input.data(), input.size());
    fuzz::require(plain == std::string(same.begin(), same.end()));
    return 0;
}
