#pragma once

#include <cstdint>

namespace tool
{

/// The process that started this one.
class ParentProcess
{
public:
    ParentProcess();
    ParentProcess(const ParentProcess&) = delete;
    ParentProcess& operator=(const ParentProcess&) = delete;
    ~ParentProcess(); // NOLINT(performance-trivially-destructible): not on Windows

    bool hasEnded() const;

private:
    // The process id on POSIX, a handle on Windows.
    std::intptr_t m_process;
};

} // namespace tool
