#pragma once

#include <chrono>
#include <string>

namespace console
{

/// Tells a person who waits longer than a second how far a command is: on standard error if that is a terminal, and
/// standard output is none. The line is gone at the end.
class Progress
{
public:
    Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    void step(const std::string& text);

private:
    using Clock = std::chrono::steady_clock;

    bool m_isWanted;
    bool m_isShown = false;
    Clock::time_point m_next;
};

} // namespace console
