#pragma once

#include "bridge/bridge_export.h"

#include <atomic>
#include <chrono>
#include <optional>

namespace vrx::bridge
{

/// What ends the wait for the other side: nothing, a point in time, or a flag that someone sets: another thread or a
/// signal handler.
struct VRX_BRIDGE Wait
{
    /// The wait ends at this time with TimedOut; nothing for no limit.
    std::optional<std::chrono::steady_clock::time_point> deadline;
    /// The wait ends with Cancelled when it becomes true; it must outlive the wait. Null for no flag.
    const std::atomic<bool>* cancelled = nullptr;

    /// Whether only the other side ends the wait.
    bool isEndless() const { return !deadline && cancelled == nullptr; }

    /// Throws Cancelled or TimedOut when the wait is over.
    void check() const;
};

static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets the flag");

} // namespace vrx::bridge
