#pragma once

#include "bridge/buffer_journal.h"
#include "bridge/stream.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace vrx::bridge
{

/// A program running as a child, with a pipe to its standard input and one from its standard output; its standard error
/// is ours. Interrupts of the terminal don't reach it. It can be killed with all that it has started: it has a process
/// group of its own on POSIX, a job on Windows.
class VRX_BRIDGE ChildProcess
{
public:
    /// The program, as a path or as a name to be looked up, and its arguments, in the system's narrow code page. The
    /// child gets the journals of this process, and the one that is given. Throws std::runtime_error when the program
    /// cannot be started.
    explicit ChildProcess(const std::vector<std::string>& command, const BufferJournal* journal = nullptr);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Ends the child, without a grace, if it still runs.
    ~ChildProcess();

    /// The end to which its standard input leads: what is written here, the child reads.
    const Stream& input() const { return m_input; }
    /// The end from which its standard output is read.
    const Stream& output() const { return m_output; }

    /// The child reads the end of its input then, which ends a healthy one.
    void closeInput() noexcept { m_input.close(); }

    /// Asks the child to end: closes its input and, on POSIX, sends SIGTERM.
    void terminate() noexcept;

    /// Kills the child with all that it has started, also when only the latter still runs. Does nothing after `end`.
    void kill() noexcept;

    /// Waits for its end, at most for this long, and tells whether it has ended.
    bool wait(std::chrono::milliseconds limit) noexcept;

    /// Closes the pipes, which ends a healthy child, asks one that still runs after the grace to end, kills it two
    /// seconds later, and tells in words how it ended.
    std::string end(std::chrono::milliseconds grace = std::chrono::seconds(1));

    /// The same without the words, for which there may be no memory.
    void finish(std::chrono::milliseconds grace = std::chrono::seconds(1)) noexcept;

    /// How it ended, behind `finish`.
    std::string endInWords() const;

    /// What it gave when it exited by itself; nothing while it runs, and when it was killed.
    std::optional<int> exitCode() const;

private:
    bool hasEnded() noexcept;
    void release() noexcept;

    Stream m_input;
    Stream m_output;
#ifdef _WIN32
    OwnedHandle m_process;
    OwnedHandle m_job;
    bool m_wasKilled = false; // by us
#else
    NativeHandle m_process = kNoHandle; // none when it was released, since the system gives the number to others then
    bool m_hasEnded = false;
#endif
    std::optional<int>
        m_status; // its exit code, or the number of a signal, negative; none when the system does not tell
};

} // namespace vrx::bridge
