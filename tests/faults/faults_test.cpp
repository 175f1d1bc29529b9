// Allocations and calls of the system fail, one after the other.

#include "tests/faults/fixture.h"

#include <gmock/gmock.h>
#ifndef _WIN32
#include <sys/prctl.h>
#endif

#include <cstring>
#include <exception>
#include <iostream>
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

constexpr Kind kFaults[] = {
    {"no memory once", ECalls::Allocations, EMode::Fails},
    {"no memory any more", ECalls::Allocations, EMode::FailsOnward},
#ifndef _WIN32
    {"failed call", ECalls::SystemCalls, EMode::Fails},
    {"interrupted call", ECalls::SystemCalls, EMode::IsInterrupted},
    {"short count", ECalls::SystemCalls, EMode::IsShort},
#endif
};

std::vector<Kind> kindsOfFaults(EManner manner)
{
    std::vector<Kind> kinds(std::begin(kFaults), std::end(kFaults));
#ifndef _WIN32
    if (manner == EManner::HasOtherWrite)
    {
        kinds.insert(kinds.end(), std::begin(kKills), std::end(kKills));
    }
#else
    static_cast<void>(manner);
#endif
    return kinds;
}

class Faults : public OnRoad
{
protected:
    /// Goes the road with a fault, and tells whether it has happened.
    bool meets(const Fault& fault)
    {
        road().prepare();
        const std::optional<std::string> text = failure(fault);
        const bool hasHappened = plan().disarm();
        if (text)
        {
            EXPECT_FALSE(text->empty());
            EXPECT_THAT(*text, Not(AnyOf(HasSubstr("signal 6"), HasSubstr("signal 11"), HasSubstr("code 3"),
                                         HasSubstr("the exception 0x"), HasSubstr("in time"))));
            EXPECT_TRUE(hasHappened) << *text;
        }
        if (text && manner() == EManner::Reads && !plan().leftObjects().empty())
        {
            road().run();
            expectRightResult();
        }
        if (!text)
        {
            expectRightResult();
        }
        road().forget();
        return hasHappened;
    }

private:
    /// The text of the exception, or nothing when the road was free.
    static std::optional<std::string> failure(const Fault& fault)
    {
        manner() == EManner::HasOtherWrite ? plan().armForOther(fault) : plan().arm(fault);
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
};

TEST_P(Faults, EndInAnExceptionOrTheRightResult)
{
    for (const Kind& kind : kindsOfFaults(manner()))
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
            const bool isRemovalItself = std::strcmp(plan().struck(), "shm_unlink") == 0;
            EXPECT_TRUE(plan().leftObjects().empty() || isRemovalItself);
            plan().removeObjects();
            return hasHappened;
        });
    }
}

INSTANTIATE_TEST_SUITE_P(All, Faults, testing::ValuesIn(allRoads()), nameOf);

} // namespace

int main(int argc, char** argv)
{
    FaultPlan::share();
#ifndef _WIN32
    ::prctl(PR_SET_CHILD_SUBREAPER, 1); // to wait for the translator of a killed host
#endif
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    std::cout << faultCount << " faults\n";
    return result;
}
