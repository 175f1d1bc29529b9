#pragma once

#include "bridge/stream.h"
#include "fuzz/support.h"

#include <sys/mman.h>
#include <unistd.h>

#include <string>

namespace fuzz
{

/// A file in memory in place of a pipe: it has the same bytes for every reader, and costs less.
class MemoryFile
{
public:
    MemoryFile()
        : m_stream(vrx::bridge::OwnedHandle(::memfd_create("fuzz", MFD_CLOEXEC)))
    {
        require(m_stream.isOpen());
    }

    const vrx::bridge::Stream& stream() const { return m_stream; }
    int descriptor() const { return static_cast<int>(m_stream.handle().get()); }

    /// Replaces the content; the next read begins at its front, and so does the next write to an empty one.
    void fill(const std::string& bytes) const
    {
        require(::ftruncate(descriptor(), 0) == 0);
        require(::pwrite(descriptor(), bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
        rewind();
    }

    void rewind() const { require(::lseek(descriptor(), 0, SEEK_SET) == 0); }

    std::string content() const
    {
        std::string bytes(static_cast<std::size_t>(::lseek(descriptor(), 0, SEEK_END)), '\0');
        require(::pread(descriptor(), bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
        return bytes;
    }

private:
    vrx::bridge::Stream m_stream;
};

} // namespace fuzz
