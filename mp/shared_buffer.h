#pragma once

#include "mp/exception.h"
#include "mp/wide.h"
#include "vrx_api/vrx_api_export.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace boost::interprocess
{
class shared_memory_object;
}

namespace mp
{

template <class T>
class SharedBuffer;

/// A named block of bytes that outlives the process that made it: one process writes it, another reads and removes it.
/// The content is exactly the bytes given to `write`; the size of the object is the length of the data.
/// All operations throw `SharedMemoryException`. On POSIX only the user who made an object may open it.
template <>
class VRX_API SharedBuffer<char>
{
public:
    SharedBuffer();
    SharedBuffer(const SharedBuffer&) = delete;
    SharedBuffer& operator=(const SharedBuffer&) = delete;

    /// Closes the object and, if it was opened to be removed on close, removes it from the system.
    virtual ~SharedBuffer();

    /// Opens the object of this name, which is created empty when it does not exist.
    void open(const wstring& name, bool removeOnClose);

    /// Replaces the content. To write nothing empties the object and throws: `clear` is for that.
    void write(const char* data, std::uint64_t size);

    /// Replaces `out` by the content.
    void read(std::vector<char>& out) const;

    /// Makes the content empty.
    void clear();

    const wstring& name() const { return m_name; }

    void setRemoveOnClose(bool removeOnClose) { m_removeOnClose = removeOnClose; }

private:
    boost::interprocess::shared_memory_object& object() const;

    std::unique_ptr<boost::interprocess::shared_memory_object> m_object;
    wstring m_name;
    std::string m_narrowName;
    bool m_removeOnClose = false;
};

} // namespace mp
