#include "parent_process.h"

// clang-format off
#include <windows.h> // which the next one needs
#include <tlhelp32.h>
// clang-format on

namespace tool
{

namespace
{

HANDLE handleOf(std::intptr_t process)
{
    return reinterpret_cast<HANDLE>(process); // NOLINT: kept as a number, as on POSIX
}

// Null when it has ended already.
HANDLE openParent()
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof(entry);
    BOOL isThere = Process32FirstW(snapshot, &entry);
    while (isThere != 0 && entry.th32ProcessID != GetCurrentProcessId())
    {
        isThere = Process32NextW(snapshot, &entry);
    }
    CloseHandle(snapshot);
    return isThere != 0 ? OpenProcess(SYNCHRONIZE, FALSE, entry.th32ParentProcessID) : nullptr;
}

} // namespace

ParentProcess::ParentProcess()
    : m_process(reinterpret_cast<std::intptr_t>(openParent())) // NOLINT
{
}

ParentProcess::~ParentProcess()
{
    if (m_process != 0)
    {
        CloseHandle(handleOf(m_process));
    }
}

bool ParentProcess::hasEnded() const
{
    return m_process == 0 || WaitForSingleObject(handleOf(m_process), 0) == WAIT_OBJECT_0;
}

} // namespace tool
