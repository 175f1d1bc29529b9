#include "tests/faults/fault_plan.h"
#include "tests/faults/roads.h"
#include "tests/support/child_process.h"
#include "tests/support/helpers.h"

#include <gmock/gmock.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <exception>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

using namespace faults;
using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

namespace
{

struct Kind
{
    const char* title;
    ECalls calls;
    EMode mode;
};

constexpr Kind kFaults[] = {
    {"no memory once", ECalls::Allocations, EMode::Fails},
    {"no memory any more", ECalls::Allocations, EMode::FailsOnward},
    {"failed call", ECalls::SystemCalls, EMode::Fails},
    {"interrupted call", ECalls::SystemCalls, EMode::IsInterrupted},
    {"short count", ECalls::SystemCalls, EMode::IsShort},
};

constexpr Kind kKills[] = {
    {"killed before a call", ECalls::SystemCalls, EMode::KillsBefore},
    {"killed behind a call", ECalls::SystemCalls, EMode::KillsBehind},
};

class Faults : public testing::TestWithParam<NamedRoad>
{
protected:
    void SetUp() override { m_expected = resultWithoutFaults(); }

    /// Goes the road with a fault, and tells whether it has happened.
    bool meets(const Fault& fault)
    {
        road().prepare();
        const std::optional<std::string> text = failure(fault);
        const bool hasHappened = plan().disarm();
        if (text)
        {
            EXPECT_FALSE(text->empty());
            EXPECT_THAT(*text, Not(AnyOf(HasSubstr("signal 6"), HasSubstr("signal 11"), HasSubstr("in time"))));
            EXPECT_TRUE(hasHappened) << *text;
        }
        if (text && GetParam().manner == EManner::Reads && !plan().leftObjects().empty())
        {
            road().run();
            EXPECT_EQ(road().result(), m_expected);
        }
        if (!text)
        {
            EXPECT_EQ(road().result(), m_expected);
        }
        road().forget();
        return hasHappened;
    }

    /// The same in another process, for a fault that kills.
    bool isKilled(const Fault& fault)
    {
        const std::size_t leftBefore = plan().leftObjects().size();
        road().prepare();
        const pid_t victim = ::fork();
        if (victim == 0)
        {
            plan().arm(fault);
            road().run();
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(victim, &status, 0);
        while (::waitpid(-1, nullptr, 0) > 0)
        {
            // What the victim had started ends by itself.
        }
        const bool isKilled = WIFSIGNALED(status); // NOLINT: as the system has it
        const std::vector<FaultPlan::Object> left = plan().leftObjects();
        EXPECT_LE(left.size(), leftBefore + 1);
        if (left.size() > leftBefore && GetParam().manner == EManner::Writes)
        {
            EXPECT_EQ(left.back().process, victim);
        }
        if (left.size() > leftBefore && GetParam().manner == EManner::Reads)
        {
            EXPECT_TRUE(isKilled);
            road().run();
            EXPECT_EQ(road().result(), m_expected);
        }
        road().forget();
        return isKilled;
    }

    static FaultPlan& plan() { return FaultPlan::instance(); }

private:
    static Road& road() { return *GetParam().road; }

    static std::string resultWithoutFaults()
    {
        road().prepare();
        road().run();
        std::string result = road().result();
        road().forget();
        return result;
    }

    /// The text of the exception, or nothing when the road was free.
    static std::optional<std::string> failure(const Fault& fault)
    {
        GetParam().manner == EManner::HasOtherWrite ? plan().armForOther(fault) : plan().arm(fault);
        try
        {
            road().run();
        }
        catch (const std::exception& error)
        {
            plan().disarm();
            return error.what();
        }
        return std::nullopt;
    }

    std::string m_expected;
};

/// Goes on until no fault of this kind happens any more.
template <class Happens>
void forEachPlace(const Kind& kind, const Happens& happens)
{
    int place = 1;
    const auto goesOn = [&] {
        SCOPED_TRACE(std::string(kind.title) + ' ' + std::to_string(place));
        return happens(Fault{kind.calls, kind.mode, place}) && !testing::Test::HasFailure();
    };
    while (goesOn())
    {
        ++place;
    }
    testing::Test::RecordProperty(kind.title, place - 1);
}

TEST_P(Faults, EndInAnExceptionOrTheRightResult)
{
    std::vector<Kind> kinds(std::begin(kFaults), std::end(kFaults));
    if (GetParam().manner == EManner::HasOtherWrite)
    {
        kinds.insert(kinds.end(), std::begin(kKills), std::end(kKills));
    }
    for (const Kind& kind : kinds)
    {
        forEachPlace(kind, [this](const Fault& fault) {
            Holdings before = Holdings::now();
            bool hasHappened = meets(fault);
            if (Holdings::now().blocks != before.blocks)
            {
                // What is made once for the whole process is there now.
                before = Holdings::now();
                hasHappened = meets(fault);
            }
            const Holdings behind = Holdings::now();
            EXPECT_EQ(behind.blocks, before.blocks);
            EXPECT_EQ(behind.files, before.files);
            EXPECT_TRUE(plan().leftObjects().empty() || GetParam().manner == EManner::Reads);
            plan().removeObjects();
            return hasHappened;
        });
    }
}

// What `vrx clean` would remove.
std::string cleaned()
{
    test::ChildProcess tool({VRX_TOOL, "clean", "--dry-run", "--older-than", "0s"});
    tool.closeInput();
    return tool.readAll();
}

class Kills : public Faults
{
};

TEST_P(Kills, LeaveAtMostOneBufferWhichIsFoundForCleaning)
{
    for (const Kind& kind : kKills)
    {
        forEachPlace(kind, [this](const Fault& fault) { return isKilled(fault); });
        const std::vector<FaultPlan::Object> left = plan().leftObjects();
        const std::string removed = left.empty() ? "" : cleaned();
        for (const FaultPlan::Object& object : left)
        {
            EXPECT_THAT(removed, HasSubstr(std::string("would remove ") + object.name.data()));
        }
        plan().removeObjects();
    }
}

std::vector<NamedRoad> roadsOfThisProcess()
{
    std::vector<NamedRoad> roads = allRoads();
    const auto end = std::remove_if(roads.begin(), roads.end(),
                                    [](const NamedRoad& road) { return road.manner == EManner::HasOtherWrite; });
    roads.erase(end, roads.end());
    return roads;
}

std::string nameOf(const testing::TestParamInfo<NamedRoad>& row)
{
    return test::testName(row.param.title);
}

INSTANTIATE_TEST_SUITE_P(All, Faults, testing::ValuesIn(allRoads()), nameOf);
INSTANTIATE_TEST_SUITE_P(All, Kills, testing::ValuesIn(roadsOfThisProcess()), nameOf);

} // namespace

int main(int argc, char** argv)
{
    FaultPlan::share();
    ::prctl(PR_SET_CHILD_SUBREAPER, 1); // to wait for the translator of a killed host
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
