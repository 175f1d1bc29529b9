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

void requireSize(std::uint64_t size, std::uint64_t limit)
{
    if (size > limit)
    {
        throw std::length_error("Content of " + std::to_string(size) + " bytes is above the limit of " +
                                std::to_string(limit) + " bytes");
    }
}

} // namespace

PlainContent::PlainContent(const mp::SharedBuffer<char>& buffer, const ReadRules& rules)
{
    // A look at the beginning spares the copy of what is too large. It decides nothing else: the buffer may change.
    constexpr std::uint64_t kBeginning = 3;
    if (buffer.size() > rules.plainBytes && !isCompressed(buffer.copy(kBeginning)))
    {
        requireSize(buffer.size(), rules.plainBytes);
    }
    m_copy = buffer.copy();
    if (isCompressed(m_copy))
    {
        Compressor::decompress(m_decompressed, m_copy.data(), m_copy.size(), rules);
        m_copy = mp::SharedCopy();
    }
    requireSize(m_copy.size(), rules.plainBytes);
}

} // namespace vrx
