#include "bridge/termination.h"

#include <csignal>

namespace vrx::bridge
{

namespace
{

std::atomic<bool> terminationIsDue = false;
struct sigaction actionBefore = {};

extern "C" void noteTermination(int)
{
    terminationIsDue = true;
}

} // namespace

// The handler makes a wait for the host end at once.
DelayedTermination::DelayedTermination()
{
    struct sigaction action = {};
    action.sa_handler = noteTermination;
    sigemptyset(&action.sa_mask);
    sigaction(SIGTERM, &action, &actionBefore);
}

DelayedTermination::~DelayedTermination()
{
    sigaction(SIGTERM, &actionBefore, nullptr);
}

const std::atomic<bool>& DelayedTermination::isDue()
{
    return terminationIsDue;
}

} // namespace vrx::bridge
