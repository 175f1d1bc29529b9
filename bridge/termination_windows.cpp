#include "bridge/termination.h"

namespace vrx::bridge
{

DelayedTermination::DelayedTermination() = default;

DelayedTermination::~DelayedTermination() = default;

const std::atomic<bool>& DelayedTermination::isDue()
{
    static const std::atomic<bool> never = false;
    return never;
}

} // namespace vrx::bridge
