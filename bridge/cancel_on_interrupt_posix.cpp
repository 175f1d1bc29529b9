#include "bridge/cancel_on_interrupt.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstddef>
#include <stdexcept>
#include <thread>

namespace vrx::bridge
{

namespace
{

constexpr std::array<int, 3> kInterrupts = {SIGINT, SIGTERM, SIGHUP};

std::array<struct sigaction, kInterrupts.size()> actionsBefore = {};
std::atomic<HostSession*> cancelledSession = nullptr;
std::atomic<int> runningHandlers = 0;
std::atomic<bool> interrupted = false;
static_assert(std::atomic<HostSession*>::is_always_lock_free && std::atomic<int>::is_always_lock_free,
              "a signal handler uses them");

extern "C" void cancelSession(int)
{
    ++runningHandlers;
    interrupted = true;
    if (HostSession* const session = cancelledSession)
    {
        session->cancel();
    }
    --runningHandlers;
}

} // namespace

CancelOnInterrupt::CancelOnInterrupt(HostSession& session)
{
    HostSession* none = nullptr;
    if (!cancelledSession.compare_exchange_strong(none, &session))
    {
        throw std::logic_error("interrupts cancel another session already");
    }
    struct sigaction action = {};
    action.sa_handler = cancelSession;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < kInterrupts.size(); ++i)
    {
        sigaction(kInterrupts[i], nullptr, &actionsBefore[i]);
        if (actionsBefore[i].sa_handler != SIG_IGN)
        {
            sigaction(kInterrupts[i], &action, nullptr);
        }
    }
}

CancelOnInterrupt::~CancelOnInterrupt()
{
    for (std::size_t i = 0; i < kInterrupts.size(); ++i)
    {
        sigaction(kInterrupts[i], &actionsBefore[i], nullptr);
    }
    cancelledSession = nullptr;
    // One in another thread may have taken the session just before, which is destroyed next.
    while (runningHandlers != 0)
    {
        std::this_thread::yield();
    }
}

bool CancelOnInterrupt::wasInterrupted()
{
    return interrupted;
}

} // namespace vrx::bridge
