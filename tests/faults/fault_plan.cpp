#include "tests/faults/fault_plan.h"

#include "mp/narrow.h"
#include "mp/shared_buffer.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <new>
#include <system_error>

namespace faults
{

namespace
{

constexpr const char* kPlanVariable = "VRX_FAULT_PLAN"; // the file of the plan that a process joins
constexpr int kNobody = 0;
constexpr int kWhoeverJoins = -1;

FaultPlan ownPlan;
FaultPlan* plan = &ownPlan;

void* mapped(int file)
{
    void* const place = ::mmap(nullptr, sizeof(FaultPlan), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (place == MAP_FAILED) // NOLINT: as the system has it
    {
        throw std::system_error(errno, std::generic_category(), "the plan of faults");
    }
    return place;
}

} // namespace

FaultPlan& FaultPlan::instance()
{
    return *plan;
}

void FaultPlan::share()
{
    const int file = ::memfd_create("vrx fault plan", 0);
    if (file < 0 || ::ftruncate(file, sizeof(FaultPlan)) != 0)
    {
        throw std::system_error(errno, std::generic_category(), "the plan of faults");
    }
    plan = new (mapped(file)) FaultPlan();
    ::setenv(kPlanVariable, std::to_string(file).c_str(), 1); // NOLINT(concurrency-mt-unsafe): there is one thread
}

void FaultPlan::join()
{
    if (const char* const file = std::getenv(kPlanVariable)) // NOLINT(concurrency-mt-unsafe): there is one thread
    {
        plan = static_cast<FaultPlan*>(mapped(std::atoi(file))); // NOLINT(cert-err34-c)
        int expected = kWhoeverJoins;
        plan->m_process.compare_exchange_strong(expected, ::getpid());
    }
}

void FaultPlan::arm(const Fault& fault)
{
    armForOther(fault);
    m_process = ::getpid();
}

void FaultPlan::armForOther(const Fault& fault)
{
    m_fault = fault;
    m_count = 0;
    m_process = kWhoeverJoins;
}

bool FaultPlan::disarm()
{
    m_process = kNobody;
    return m_count >= m_fault.place;
}

bool FaultPlan::strikes(ECalls calls, EMode mode)
{
    if (m_process <= kNobody || m_fault.calls != calls || m_fault.mode != mode || m_process != ::getpid())
    {
        return false;
    }
    const int place = ++m_count;
    return place == m_fault.place || (mode == EMode::FailsOnward && place > m_fault.place);
}

void FaultPlan::noteObject(const char* name)
{
    const auto end = m_objects.begin() + m_objectCount;
    const auto noted = std::find_if(
        m_objects.begin(), end, [name](const Object& object) { return std::strcmp(object.name.data(), name) == 0; });
    if (noted == end && end != m_objects.end())
    {
        end->process = ::getpid();
        std::strncpy(end->name.data(), name, end->name.size() - 1);
        ++m_objectCount;
    }
}

std::vector<FaultPlan::Object> FaultPlan::leftObjects()
{
    const auto isGone = [](const Object& object) {
        return !mp::SharedBuffer<char>().openExisting(mp::toWide(object.name.data()));
    };
    const auto end = std::remove_if(m_objects.begin(), m_objects.begin() + m_objectCount, isGone);
    m_objectCount = static_cast<int>(end - m_objects.begin());
    return {m_objects.begin(), end};
}

void FaultPlan::removeObjects()
{
    for (const Object& object : leftObjects())
    {
        mp::SharedBuffer<char>::removeNarrow(object.name.data());
    }
}

} // namespace faults
