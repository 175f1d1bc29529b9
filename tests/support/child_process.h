#pragma once

#include "bridge/child_process.h"

#include <string>
#include <string_view>
#include <vector>

namespace test
{

/// All that comes up to the end of a stream.
inline std::string readAll(const vrx::bridge::Stream& stream)
{
    std::string all;
    char bytes[4096];
    while (const std::size_t count = stream.readSome(bytes, sizeof(bytes)))
    {
        all.append(bytes, count);
    }
    return all;
}

/// A process whose standard input and output are pipes to this one. Killed when this object goes, if it still runs.
class ChildProcess
{
public:
    explicit ChildProcess(const std::vector<std::string>& command)
        : m_process(command)
    {
    }

    void write(std::string_view bytes) const { m_process.input().writeAll(bytes.data(), bytes.size()); }
    void closeInput() { m_process.closeInput(); }

    /// All output up to its end.
    std::string readAll() const { return test::readAll(m_process.output()); }

    /// Output up to and without the first of these bytes.
    std::string readUpTo(char end) const
    {
        std::string all;
        for (char byte = 0; m_process.output().readSome(&byte, 1) == 1 && byte != end;)
        {
            all.push_back(byte);
        }
        return all;
    }

    /// Waits for the end of the process and returns its exit code; -1 when it was killed.
    int wait()
    {
        m_process.wait(std::chrono::minutes(2));
        return m_process.exitCode().value_or(-1);
    }

    void kill() { m_process.kill(); }

private:
    vrx::bridge::ChildProcess m_process;
};

} // namespace test
