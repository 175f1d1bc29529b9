#pragma once

#include <sys/types.h>

#include <string>

/// A program running as a child, with a pipe to its standard input and one from its standard output; its standard error
/// is ours. It has a process group of its own and is killed with all that it has started. POSIX only.
class ChildProcess
{
public:
    /// Throws std::system_error when the program cannot be started.
    explicit ChildProcess(const std::string& program);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Ends the child if it still runs.
    ~ChildProcess();

    int input() const { return m_input; }
    int output() const { return m_output; }

    /// The child reads the end of its input then, which ends a healthy one.
    void closeInput();

    /// Asks the child to end, by SIGTERM, and soon after kills it, so that its output comes to an end.
    void terminate() const;

    /// Kills the child, if it still runs, and tells in words how it ended.
    std::string end();

    /// From now on SIGINT, SIGTERM and SIGHUP end this child instead of this process, by SIGTERM and soon after by
    /// SIGKILL: the end of its output then brings us to our clearing up.
    void takeInterrupts() const;
    static bool wasInterrupted();

private:
    pid_t m_process = -1;
    int m_input = -1;
    int m_output = -1;
};
