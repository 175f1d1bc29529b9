#pragma once

#include "tests/faults/fault_plan.h"
#include "tests/faults/roads.h"
#include "tests/support/helpers.h"

#include <gtest/gtest.h>

#include <string>

namespace faults
{

struct Kind
{
    const char* title;
    ECalls calls;
    EMode mode;
};

constexpr Kind kKills[] = {
    {"killed before a call", ECalls::SystemCalls, EMode::KillsBefore},
    {"killed behind a call", ECalls::SystemCalls, EMode::KillsBehind},
};

// Under Wine a process takes so long to start that a road with one meets not every fault: from this place on the step
// is longer.
#ifdef _WIN32
constexpr int kLongStep = 20;
#else
constexpr int kLongStep = 1;
#endif
constexpr int kLongStepsBegin = 20;

/// Of all tests of this process.
inline int faultCount = 0;

/// A road, which is gone without faults first.
class OnRoad : public testing::TestWithParam<NamedRoad>
{
protected:
    void SetUp() override
    {
        road().prepare();
        road().run();
        m_expected = road().result();
        road().forget();
        m_usesSharedMemory = plan().hasObjects();
        EXPECT_TRUE(m_usesSharedMemory || !road().startsProcess());
        EXPECT_TRUE(plan().leftObjects().empty());
    }

    static FaultPlan& plan() { return FaultPlan::instance(); }
    static Road& road() { return *GetParam().road; }
    static EManner manner() { return GetParam().manner; }

    bool usesSharedMemory() const { return m_usesSharedMemory; }
    void expectRightResult() const { EXPECT_EQ(road().result(), m_expected); }

    /// Goes on until no fault of this kind happens any more.
    template <class Happens>
    void forEachPlace(const Kind& kind, const Happens& happens) const
    {
        int place = 1;
        const auto goesOn = [&] {
            SCOPED_TRACE(std::string(kind.title) + ' ' + std::to_string(place));
            return happens(Fault{kind.calls, kind.mode, place}) && !HasFailure();
        };
        int count = 0;
        while (goesOn())
        {
            ++count;
            place += road().startsProcess() && place >= kLongStepsBegin ? kLongStep : 1;
        }
        // Without shared memory and other processes the system is not called.
        EXPECT_TRUE(HasFailure() || (count > 0) == (kind.calls == ECalls::Allocations || usesSharedMemory()))
            << kind.title;
        RecordProperty(kind.title, count);
        faultCount += count;
    }

private:
    std::string m_expected;
    bool m_usesSharedMemory = false;
};

inline std::string nameOf(const testing::TestParamInfo<NamedRoad>& row)
{
    return test::testName(row.param.title);
}

} // namespace faults
