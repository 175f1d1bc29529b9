#include "vrx_api/exchange/shared_content.h"

#include "vrx_api/exchange/compressor.h"

#include <stdexcept>
#include <string>

namespace vrx
{

namespace
{

bool isCompressed(const mp::SharedCopy& content)
{
    return Compressor::isCompressed(content.data(), content.size());
}

// The most bytes of a stream that holds no more than the limit: what cannot be compressed grows a little.
std::uint64_t mostCompressed(std::uint64_t limit)
{
    constexpr std::uint64_t kRoom = std::uint64_t{64} << 10U;
    return limit > ReadRules::kNoLimit / 2 ? ReadRules::kNoLimit : limit + limit / 8 + kRoom;
}

void requireSize(std::uint64_t size, bool isCompressed, const ReadRules& rules)
{
    if (size > (isCompressed ? mostCompressed(rules.plainBytes) : rules.plainBytes))
    {
        throw std::length_error("Content of " + std::to_string(size) + " bytes is above the limit of " +
                                std::to_string(rules.plainBytes) + " bytes");
    }
}

} // namespace

PlainContent::PlainContent(const mp::SharedBuffer<char>& buffer, const ReadRules& rules)
{
    // Nothing is copied that is too large. The buffer may change at any time: it is the copy that counts.
    constexpr std::uint64_t kBeginning = 3;
    const std::uint64_t size = buffer.size();
    requireSize(size, isCompressed(buffer.copy(kBeginning)), rules);
    m_copy = buffer.copy(size);
    requireSize(m_copy.size(), isCompressed(m_copy), rules);
    if (isCompressed(m_copy))
    {
        Compressor::decompress(m_decompressed, m_copy.data(), m_copy.size(), rules);
        m_copy = mp::SharedCopy();
    }
}

} // namespace vrx
