#pragma once

#include "tests/faults/fault_plan.h"

#include <atomic>
#include <cerrno>

// What an allocation in place of the system's own does beside it: it may fail, and it is counted.
namespace faults
{

inline std::atomic<long> liveBlocks = 0; // of memory, that are not freed

inline void* counted(void* block)
{
    liveBlocks += block != nullptr ? 1 : 0;
    return block;
}

inline bool hasNoMemory()
{
    const bool fails = FaultPlan::instance().hasNoMemory();
    errno = fails ? ENOMEM : errno;
    return fails;
}

} // namespace faults
