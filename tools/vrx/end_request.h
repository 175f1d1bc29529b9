#pragma once

#include <atomic>

namespace tool
{

/// Set when this program is to end.
extern std::atomic<bool> isToEnd;

/// From now on SIGTERM and SIGINT set `isToEnd` and do nothing else.
void takeEndSignals();

} // namespace tool
