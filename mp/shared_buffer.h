#pragma once

#include "mp/exception.h"
#include "mp/shared_copy.h"
#include "mp/wide.h"
#include "vrx_api/vrx_api_export.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace boost::interprocess
{
class shared_memory_object;
} // namespace boost::interprocess

namespace mp
{

template <class T>
class SharedBuffer;

/// A named block of bytes that outlives the process that made it: one process writes it, another reads and removes it.
/// The content is exactly the bytes given to `write`; the size of the object is the length of the data.
/// Operations throw `SharedMemoryException` and `std::bad_alloc` unless they are noexcept. On POSIX only the user who
/// made an object may open it. One thread at a time uses an object of this class; its static functions are for any
/// thread.
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

    /// Opens the object of this name only if it exists, and tells whether it does. It is not removed on close.
    bool openExisting(const wstring& name);

    /// Takes the object of this name out of the system, and tells whether there was one.
    static bool remove(const wstring& name);

    /// The same with a name in the system's narrow code page; false also for what is no name. It needs no memory, on
    /// Windows once `open` was called.
    static bool removeNarrow(std::string_view narrowName) noexcept;

    /// Replaces the content. To write nothing empties the object and throws: `clear` is for that.
    void write(const char* data, std::uint64_t size);

    /// The same with content that is made in place: `make` gets the memory and writes all of it. An exception that it
    /// throws passes, and leaves the object empty.
    void fill(std::uint64_t size, const std::function<void(char*)>& make);

    /// Replaces `out` by the content.
    void read(std::vector<char>& out) const;

    /// The content, or its first bytes, no more than these. No other program can end this one by making the object
    /// shorter meanwhile: bytes that are there no more are zeros, or on Windows an error.
    SharedCopy copy(std::uint64_t most = ~std::uint64_t{0}) const;

    /// The size of the content.
    std::uint64_t size() const;

    /// Makes the content empty.
    void clear();

    /// The name by which it was opened.
    const wstring& name() const { return m_name; }

    /// Whether closing removes the object from the system.
    void setRemoveOnClose(bool removeOnClose) { m_removeOnClose = removeOnClose; }

private:
    boost::interprocess::shared_memory_object& object() const;

    std::unique_ptr<boost::interprocess::shared_memory_object> m_object;
    wstring m_name;
    std::string m_narrowName;
    bool m_removeOnClose = false;
};

/// Hears the name of a shared buffer before `open` opens or makes it, so that someone else can remove the buffer when
/// this process dies before it has told of it. What it throws passes through `open`.
using SharedBufferWatcher = void (*)(const wstring& name);

/// There is one watcher in a process, or none: null. Any thread may set it at any time. It is called in the threads
/// that open buffers, perhaps in several at once, and the one before may still be called in them for a moment.
VRX_API void setSharedBufferWatcher(SharedBufferWatcher watcher);

} // namespace mp
