#pragma once

#include "mp/shared_buffer.h"
#include "vrx_api/geometry/kernel.h"
#include "vrx_api/json/json_fwd.h"
#include "vrx_api/json/read_rules.h"
#include "vrx_api/vrx_api_export.h"

#include <cstdint>
#include <sstream>

namespace vrx
{

/// The file that the kernel saves bodies into and restores them from. The bytes, the kernel's own format, gather in
/// this process; `flush` and `load` carry them to and from the shared memory object. All operations that reach it throw
/// `mp::SharedMemoryException`.
class VRX_API ExcSharedAcisBuffer : public BinaryFile
{
public:
    /// Opens the shared memory object of this name, which is created empty when it does not exist.
    ExcSharedAcisBuffer(const wstring& name, bool removeOnClose);
    ~ExcSharedAcisBuffer() override;

    /// Makes the bytes the content of the shared memory object, as a gzip stream if wanted.
    void flush(bool compress);

    /// Makes the content of the shared memory object, decompressed if it says that it is compressed, the bytes to
    /// restore from. Throws `std::runtime_error` for damaged compressed data and for what a strict reader refuses, and
    /// `std::length_error` for more bytes than the limit.
    void load(const ReadRules& rules = {});

    /// Goes back to the start.
    void cleanUp();

    /// The name of the shared memory object.
    const wstring& name() const { return m_sharedBuffer.name(); }
    /// Whether the end of this object removes it from the system.
    void setRemoveOnClose(bool removeOnClose) { m_sharedBuffer.setRemoveOnClose(removeOnClose); }

    /// For the kernel: the place in the bytes, and the way back to it.
    FilePosition set_mark() override;
    FilePosition goto_mark(FilePosition position) override;

protected:
    /// For the kernel: takes the next bytes, and adds bytes.
    std::size_t read(void* buffer, std::size_t length) override;
    void write(const void* data, std::size_t length) override;

private:
    void init(const wstring& name, bool removeOnClose);

    mp::SharedBuffer<char> m_sharedBuffer;
    std::stringstream m_stream;
    std::int64_t m_position = 0;
};

} // namespace vrx
