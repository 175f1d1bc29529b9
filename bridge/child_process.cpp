#include "bridge/child_process.h"

#include <algorithm>
#include <thread>

namespace vrx::bridge
{

namespace
{

constexpr std::chrono::seconds kTimeToEnd{2}; // for one that was asked to

} // namespace

ChildProcess::~ChildProcess()
{
    finish(std::chrono::milliseconds(0));
}

bool ChildProcess::wait(std::chrono::milliseconds limit) noexcept
{
    using std::chrono::milliseconds;
    constexpr milliseconds kLongestPause{20};
    const auto begin = std::chrono::steady_clock::now();
    milliseconds pause{1};
    while (!hasEnded())
    {
        const auto waited = std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - begin);
        if (waited >= limit)
        {
            return false;
        }
        std::this_thread::sleep_for(std::min(pause, limit - waited));
        pause = std::min(pause * 2, kLongestPause);
    }
    return true;
}

std::string ChildProcess::end(std::chrono::milliseconds grace)
{
    finish(grace);
    return endInWords();
}

void ChildProcess::finish(std::chrono::milliseconds grace) noexcept
{
    m_input.close();
    m_output.close();
    if (!wait(grace))
    {
        terminate();
        if (!wait(kTimeToEnd))
        {
            kill();
            wait(std::chrono::hours(1)); // for the system to clear it away
        }
    }
    release();
}

} // namespace vrx::bridge
