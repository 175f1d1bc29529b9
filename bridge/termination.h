#pragma once

#include <atomic>

namespace vrx::bridge
{

/// While there is one, SIGTERM does not end the process but leaves a note, for a translator that may just be about to
/// tell of shared memory. There is one in a process. Windows has no such signal.
class DelayedTermination
{
public:
    DelayedTermination();
    DelayedTermination(const DelayedTermination&) = delete;
    DelayedTermination& operator=(const DelayedTermination&) = delete;
    ~DelayedTermination();

    /// Stays true once it is.
    static const std::atomic<bool>& isDue();
};

} // namespace vrx::bridge
