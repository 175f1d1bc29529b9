#include "tests/faults/fault_plan.h"
#include "tests/faults/roads.h"
#include "tests/support/helpers.h"

#include <gmock/gmock.h>

#include <exception>
#include <optional>

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

constexpr Kind kKinds[] = {
    {"no memory once", ECalls::Allocations, EMode::Fails},
    {"no memory any more", ECalls::Allocations, EMode::FailsOnward},
    {"failed call", ECalls::SystemCalls, EMode::Fails},
    {"interrupted call", ECalls::SystemCalls, EMode::IsInterrupted},
    {"short count", ECalls::SystemCalls, EMode::IsShort},
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
            EXPECT_THAT(*text, Not(AnyOf(HasSubstr("signal 6"), HasSubstr("signal 11"))));
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

TEST_P(Faults, EndInAnExceptionOrTheRightResult)
{
    for (const Kind& kind : kKinds)
    {
        int place = 0;
        bool hasHappened = true;
        bool isSecondLook = false; // at what may have been made once for the whole process
        while (hasHappened && !HasFailure())
        {
            place += isSecondLook ? 0 : 1;
            SCOPED_TRACE(std::string(kind.title) + ' ' + std::to_string(place));
            const Holdings before = Holdings::now();
            hasHappened = meets({kind.calls, kind.mode, place});
            const Holdings behind = Holdings::now();
            EXPECT_TRUE(behind == before || !isSecondLook)
                << behind.blocks - before.blocks << " blocks and " << behind.files - before.files << " files are left";
            isSecondLook = !(behind == before);
            EXPECT_TRUE(plan().leftObjects().empty() || GetParam().manner == EManner::Reads);
            plan().removeObjects();
        }
        RecordProperty(kind.title, place - 1);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Faults, testing::ValuesIn(allRoads()),
                         [](const auto& row) { return test::testName(row.param.title); });

} // namespace

int main(int argc, char** argv)
{
    FaultPlan::share();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
