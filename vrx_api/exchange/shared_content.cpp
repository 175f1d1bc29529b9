#include "vrx_api/exchange/shared_content.h"

#include "vrx_api/exchange/compressor.h"

#include <vector>

namespace vrx
{

Bytes plainContent(const mp::SharedBuffer<char>& buffer)
{
    std::vector<char> bytes;
    buffer.read(bytes);
    if (!Compressor::isCompressed(bytes.data(), bytes.size()))
    {
        return Bytes(bytes.begin(), bytes.end());
    }
    Bytes plain;
    Compressor::decompress(plain, bytes.data(), bytes.size());
    return plain;
}

} // namespace vrx
