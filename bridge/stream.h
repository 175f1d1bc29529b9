#pragma once

#include "bridge/handle.h"
#include "bridge/stream_error.h"
#include "bridge/wait.h"

#include <cstddef>

namespace vrx::bridge
{

struct Pipe;

/// One end of a pipe, or an open file. Programs that this one starts do not inherit it. All operations throw
/// StreamError, on a stream that is not open, too.
class VRX_BRIDGE Stream
{
public:
    Stream() = default;
    /// Takes over what is open.
    explicit Stream(OwnedHandle handle)
        : m_handle(std::move(handle))
    {
    }

    /// Both ends of a new pipe.
    static Pipe pipe();

    /// Streams of their own on what this process has as its standard input and output.
    static Stream standardInput();
    static Stream standardOutput();

    /// The standard output of this process, for the caller alone: what others print there goes to standard error from
    /// now on, so that no stray line gets between two messages. A process without standard error gets one that leads
    /// nowhere.
    static Stream takeStandardOutput();

    /// Whether there is something to read or to write.
    bool isOpen() const { return m_handle.isOpen(); }
    /// The partner reads the end of the stream then, or cannot write any more.
    void close() noexcept { m_handle.close(); }
    /// For calls of the system; still owned here.
    const OwnedHandle& handle() const { return m_handle; }

    /// Waits for the first bytes and reads those that are there; none at the end of the stream. Throws TimedOut and
    /// Cancelled, too.
    std::size_t readSome(char* bytes, std::size_t size, const Wait& wait = {}) const;

    /// Whether a read would not wait.
    bool isReady() const;

    /// A partner who is gone is an error, and no signal. Throws NoReader, TimedOut and Cancelled, too; on Windows the
    /// wait is looked at only before the bytes are written.
    void writeAll(const char* bytes, std::size_t size, const Wait& wait = {}) const;

private:
    const OwnedHandle& openHandle() const;

    OwnedHandle m_handle;
};

/// What is written to the one end is read from the other.
struct Pipe
{
    /// Gives what was written, in its order.
    Stream readEnd;
    /// Takes what is to be read.
    Stream writeEnd;
};

} // namespace vrx::bridge
