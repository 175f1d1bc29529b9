#include "end_request.h"

#include <csignal>

namespace tool
{

static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets the flag");
std::atomic<bool> isToEnd = false;

extern "C" void onEndSignal(int)
{
    isToEnd = true;
}

void takeEndSignals()
{
    static_cast<void>(std::signal(SIGTERM, onEndSignal));
    static_cast<void>(std::signal(SIGINT, onEndSignal));
#ifndef _WIN32
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
#endif
}

} // namespace tool
