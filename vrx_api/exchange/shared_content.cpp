#include "vrx_api/exchange/shared_content.h"

#include "vrx_api/exchange/compressor.h"

#include <stdexcept>
#include <string>

namespace vrx
{

PlainContent::PlainContent(const mp::SharedBuffer<char>& buffer, std::uint64_t limit)
    : m_view(buffer.view())
{
    if (Compressor::isCompressed(m_view.data(), m_view.size()))
    {
        Compressor::decompress(m_decompressed, m_view.data(), m_view.size(), limit);
        m_view = mp::SharedView();
    }
    else if (m_view.size() > limit)
    {
        throw std::length_error("Content of " + std::to_string(m_view.size()) + " bytes is above the limit of " +
                                std::to_string(limit) + " bytes");
    }
}

} // namespace vrx
