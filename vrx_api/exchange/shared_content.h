#pragma once

#include "mp/shared_buffer.h"
#include "vrx_api/exchange/bytes.h"
#include "vrx_api/json/read_rules.h"

#include <cstdint>

namespace vrx
{

/// The content of a shared memory buffer, decompressed if it says that it is compressed. It is this process's own: what
/// others do to the buffer later does not reach it.
class PlainContent
{
public:
    /// Throws what both throw, and `std::length_error` for plain content above the rules' limit.
    PlainContent(const mp::SharedBuffer<char>& buffer, const ReadRules& rules);

    const char* data() const { return m_copy.size() != 0 ? m_copy.data() : m_decompressed.data(); }
    std::uint64_t size() const { return m_copy.size() != 0 ? m_copy.size() : m_decompressed.size(); }

private:
    mp::SharedCopy m_copy;
    Bytes m_decompressed;
};

} // namespace vrx
