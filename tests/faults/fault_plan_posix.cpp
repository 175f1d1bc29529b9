#include "tests/faults/fault_plan.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace faults
{

namespace
{

void* mapped(int file, std::size_t size)
{
    void* const place = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (place == MAP_FAILED) // NOLINT: as the system has it
    {
        throw std::system_error(errno, std::generic_category(), "the plan of faults");
    }
    return place;
}

} // namespace

int thisProcess()
{
    return ::getpid();
}

void* makeSharedMemory(std::size_t size)
{
    const int file = ::memfd_create("vrx fault plan", 0);
    if (file < 0 || ::ftruncate(file, static_cast<off_t>(size)) != 0)
    {
        throw std::system_error(errno, std::generic_category(), "the plan of faults");
    }
    ::setenv(kPlanVariable, std::to_string(file).c_str(), 1); // NOLINT(concurrency-mt-unsafe): there is one thread
    return mapped(file, size);
}

void* inheritedSharedMemory(std::size_t size)
{
    const char* const file = std::getenv(kPlanVariable);              // NOLINT(concurrency-mt-unsafe)
    return file == nullptr ? nullptr : mapped(std::atoi(file), size); // NOLINT(cert-err34-c)
}

} // namespace faults
