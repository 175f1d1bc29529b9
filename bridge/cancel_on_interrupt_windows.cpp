#include "bridge/cancel_on_interrupt.h"

#include <windows.h>

#include <atomic>
#include <mutex>
#include <stdexcept>

namespace vrx::bridge
{

namespace
{

constexpr DWORD kTimeToEnd = 10000; // milliseconds: more than the system gives

std::mutex mutex; // the system calls the handler in a thread of its own
HostSession* cancelledSession = nullptr;
std::atomic<bool> interrupted = false;

BOOL WINAPI cancelSession(DWORD event)
{
    interrupted = true;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (cancelledSession != nullptr)
        {
            cancelledSession->cancel();
        }
    }
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
    {
        Sleep(kTimeToEnd); // the process is ended as soon as this comes back
    }
    return TRUE;
}

} // namespace

CancelOnInterrupt::CancelOnInterrupt(HostSession& session)
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (cancelledSession != nullptr)
    {
        throw std::logic_error("interrupts cancel another session already");
    }
    cancelledSession = &session;
    SetConsoleCtrlHandler(cancelSession, TRUE);
}

CancelOnInterrupt::~CancelOnInterrupt()
{
    SetConsoleCtrlHandler(cancelSession, FALSE);
    const std::lock_guard<std::mutex> lock(mutex);
    cancelledSession = nullptr;
}

bool CancelOnInterrupt::wasInterrupted()
{
    return interrupted;
}

} // namespace vrx::bridge
