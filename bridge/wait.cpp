#include "bridge/wait.h"

#include "bridge/stream_error.h"

namespace vrx::bridge
{

void Wait::check() const
{
    if (cancelled != nullptr && *cancelled)
    {
        throw Cancelled("the wait for the other side was cancelled");
    }
    if (deadline && std::chrono::steady_clock::now() >= *deadline)
    {
        throw TimedOut("the other side did not answer in time");
    }
}

} // namespace vrx::bridge
