#pragma once

#include "mp/shared_buffer.h"
#include "vrx_api/exchange/bytes.h"

#include <cstdint>

namespace vrx
{

/// The content of a shared memory buffer, decompressed if it says that it is compressed, and otherwise in place. It is
/// let go before the buffer.
class PlainContent
{
public:
    /// Throws what both throw, and `std::length_error` for plain content above the limit.
    PlainContent(const mp::SharedBuffer<char>& buffer, std::uint64_t limit);

    const char* data() const { return m_view.size() != 0 ? m_view.data() : m_decompressed.data(); }
    std::uint64_t size() const { return m_view.size() != 0 ? m_view.size() : m_decompressed.size(); }

private:
    mp::SharedView m_view;
    Bytes m_decompressed;
};

} // namespace vrx
