#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <string>
#include <vector>

namespace faults
{

enum class ECalls
{
    Allocations,
    SystemCalls,
};

enum class EMode
{
    Fails,
    FailsOnward, ///< And all behind it fail, too.
    IsInterrupted,
    IsShort,
    KillsBefore, ///< The process dies before the call,
    KillsBehind, ///< or behind it.
};

/// What happens to one call of a process: the one at this place among the calls that it can happen to, counted from 1.
struct Fault
{
    ECalls calls;
    EMode mode;
    int place;
};

/// The fault that is due, and what became of shared memory. The test and the processes that it starts share one plan.
class FaultPlan
{
public:
    static FaultPlan& instance();

    /// The process that starts the others makes a plan that they can join.
    static void share();

    /// A started process takes the fault that was meant for it. Does nothing without a plan.
    static void join();

    /// No fault happens to it any more.
    static void leave();

    /// From now on the calls of this process count, or those of the process that joins.
    void arm(const Fault& fault);
    void armForOther(const Fault& fault);

    /// Tells whether the fault has happened.
    bool disarm();

    /// Counts a call, and tells whether the fault happens to it.
    bool strikes(ECalls calls, EMode mode, const char* call);

    /// The same for an allocation.
    bool hasNoMemory();

    /// The last call that a fault has happened to, or "".
    const char* struck() const { return m_struck.data(); }

    /// A shared memory object was made.
    void noteObject(const char* name);

    /// Whether there was one since `leftObjects` last said that there is none.
    bool hasObjects() const { return m_objectCount > 0; }

    struct Object
    {
        int process;               ///< That made it.
        std::array<char, 60> name; ///< Ends with a null character.
    };

    /// Those that are still in the system.
    std::vector<Object> leftObjects();

    /// Removes them.
    void removeObjects();

private:
    std::atomic<int> m_process; // whose calls count
    Fault m_fault;
    std::atomic<int> m_count;
    std::array<char, 20> m_struck;
    std::atomic<int> m_objectCount;
    std::array<Object, 100> m_objects;
};

/// The memory of a plan, in the process that starts the others and in these: null where none was made.
void* makeSharedMemory(std::size_t size);
void* inheritedSharedMemory(std::size_t size);
constexpr const char* kPlanVariable = "VRX_FAULT_PLAN"; // of the environment, which tells them of it

int thisProcess();

/// What this process holds: blocks of memory that it has not freed, and open files, on Windows all handles.
struct Holdings
{
    long blocks;
    int files;

    static Holdings now();
};

} // namespace faults
