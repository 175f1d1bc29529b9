#include "tests/faults/fault_plan.h"

#include "mp/narrow.h"
#include "mp/shared_buffer.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace faults
{

namespace
{

constexpr int kNobody = 0;
constexpr int kWhoeverJoins = -1;

FaultPlan ownPlan;
FaultPlan* plan = &ownPlan;

} // namespace

FaultPlan& FaultPlan::instance()
{
    return *plan;
}

void FaultPlan::share()
{
    plan = new (makeSharedMemory(sizeof(FaultPlan))) FaultPlan();
}

void FaultPlan::join()
{
    if (void* const memory = inheritedSharedMemory(sizeof(FaultPlan)))
    {
        plan = static_cast<FaultPlan*>(memory);
        int expected = kWhoeverJoins;
        plan->m_process.compare_exchange_strong(expected, thisProcess());
    }
}

void FaultPlan::leave()
{
    int expected = thisProcess();
    plan->m_process.compare_exchange_strong(expected, kNobody);
}

void FaultPlan::arm(const Fault& fault)
{
    armForOther(fault);
    m_process = thisProcess();
}

void FaultPlan::armForOther(const Fault& fault)
{
    m_fault = fault;
    m_count = 0;
    m_struck = {};
    m_process = kWhoeverJoins;
}

bool FaultPlan::disarm()
{
    m_process = kNobody;
    return m_count >= m_fault.place;
}

bool FaultPlan::strikes(ECalls calls, EMode mode, const char* call)
{
    if (m_process <= kNobody || m_fault.calls != calls || m_fault.mode != mode || m_process != thisProcess())
    {
        return false;
    }
    const int place = ++m_count;
    const bool strikes = place == m_fault.place || (mode == EMode::FailsOnward && place > m_fault.place);
    if (strikes)
    {
        std::strncpy(m_struck.data(), call, m_struck.size() - 1);
    }
    return strikes;
}

bool FaultPlan::hasNoMemory()
{
    return strikes(ECalls::Allocations, EMode::Fails, "malloc") ||
           strikes(ECalls::Allocations, EMode::FailsOnward, "malloc");
}

void FaultPlan::noteObject(const char* name)
{
    const auto end = m_objects.begin() + m_objectCount;
    const auto noted = std::find_if(
        m_objects.begin(), end, [name](const Object& object) { return std::strcmp(object.name.data(), name) == 0; });
    if (noted == end && end != m_objects.end())
    {
        end->process = thisProcess();
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
