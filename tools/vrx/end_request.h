#pragma once

#include <atomic>

namespace tool
{

/// Set when this program is to end.
extern std::atomic<bool> isToEnd;

/// From now on SIGTERM and SIGINT set `isToEnd` and do nothing else. A write to a file that may grow no more, or to a
/// pipe that nobody reads, is an error and no signal.
void takeEndSignals();

} // namespace tool
