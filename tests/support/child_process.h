#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace test
{

/// A process whose standard input and output are pipes to this one. Killed when this object goes, if it still runs.
class ChildProcess
{
public:
    explicit ChildProcess(const std::vector<std::string>& command);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();

    void write(std::string_view bytes) const;
    void closeInput();

    /// All output up to its end.
    std::string readAll();

    /// Output up to and without the first of these bytes.
    std::string readUpTo(char end);

    /// Waits for the end of the process and returns its exit code; -1 when it was killed.
    int wait();

    void kill();

private:
    /// Up to this many bytes; none at the end of the output.
    std::size_t readSome(char* bytes, std::size_t size) const;

    // Process ids and descriptors on POSIX, handles on Windows; -1 for none.
    std::intptr_t m_process = -1;
    std::intptr_t m_input = -1;
    std::intptr_t m_output = -1;
    bool m_killed = false;
};

} // namespace test
