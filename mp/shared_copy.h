#pragma once

#include "vrx_api/vrx_api_export.h"

#include <cstdint>
#include <memory>

namespace boost::interprocess
{
class shared_memory_object;
} // namespace boost::interprocess

namespace mp
{

template <class T>
class SharedBuffer;

/// The content of a shared buffer as it was when it was copied, in memory of this process alone: what another program
/// does to the buffer later does not reach it. See `SharedBuffer::copy`.
class VRX_API SharedCopy
{
public:
    SharedCopy() = default;

    /// The bytes, as many as `size` tells; null when there are none.
    const char* data() const { return m_bytes.get(); }
    /// The number of bytes.
    std::uint64_t size() const { return m_bytes == nullptr ? 0 : m_size; }

private:
    friend class SharedBuffer<char>;

    struct VRX_API Release
    {
        void operator()(char* bytes) const noexcept;
    };

    /// The first bytes of an object, which are zeros where it has none. Throws the errors of the layer below.
    SharedCopy(const boost::interprocess::shared_memory_object& object, std::uint64_t size);

    std::unique_ptr<char, Release> m_bytes;
    std::uint64_t m_size = 0;
};

} // namespace mp
