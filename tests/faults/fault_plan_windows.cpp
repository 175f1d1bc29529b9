#include "tests/faults/fault_plan.h"

#include <windows.h>

#include <cstdlib>
#include <string>
#include <system_error>

namespace faults
{

namespace
{

// Lives as long as a process has it.
void* mapped(const std::string& name, std::size_t size)
{
    HANDLE const memory =
        CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, static_cast<DWORD>(size), name.c_str());
    void* const place = MapViewOfFile(memory, FILE_MAP_ALL_ACCESS, 0, 0, size);
    if (place == nullptr)
    {
        throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), "the plan of faults");
    }
    return place;
}

} // namespace

int thisProcess()
{
    return static_cast<int>(GetCurrentProcessId());
}

void* makeSharedMemory(std::size_t size)
{
    const std::string name = "vrx fault plan " + std::to_string(thisProcess());
    SetEnvironmentVariableA(kPlanVariable, name.c_str());
    return mapped(name, size);
}

void* inheritedSharedMemory(std::size_t size)
{
    const char* const name = std::getenv(kPlanVariable);
    return name == nullptr ? nullptr : mapped(name, size);
}

} // namespace faults
