// The process is killed before and behind each call of the system.

#include "tests/faults/fixture.h"
#include "tests/support/child_process.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace faults;
using testing::HasSubstr;

namespace
{

// What `vrx clean` would remove.
std::string cleaned()
{
    test::ChildProcess tool({VRX_TOOL, "clean", "--dry-run", "--older-than", "0s"});
    tool.closeInput();
    return tool.readAll();
}

class Kills : public OnRoad
{
protected:
    /// Goes the road in another process, and tells whether that was killed.
    bool isKilled(const Fault& fault)
    {
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
        expectOneBuffer(isKilled, victim);
        road().forget();
        return isKilled;
    }

    int leftCount() const { return m_leftCount; }

private:
    /// At most.
    void expectOneBuffer(bool isKilled, int victim)
    {
        const std::vector<FaultPlan::Object> left = plan().leftObjects();
        if (left.empty())
        {
            return;
        }
        ++m_leftCount;
        ASSERT_EQ(left.size(), 1);
        EXPECT_THAT(cleaned(), HasSubstr(std::string("would remove ") + left.front().name.data()));
        if (manner() == EManner::Writes)
        {
            EXPECT_EQ(left.front().process, victim);
            plan().removeObjects();
        }
        else
        {
            EXPECT_TRUE(isKilled);
            road().run();
            expectRightResult();
            EXPECT_TRUE(plan().leftObjects().empty());
        }
    }

    int m_leftCount = 0;
};

TEST_P(Kills, LeaveAtMostOneBufferWhichIsFoundForCleaning)
{
    for (const Kind& kind : kKills)
    {
        const int leftBefore = leftCount();
        forEachPlace(kind, [this](const Fault& fault) { return isKilled(fault); });
        EXPECT_EQ(leftCount() > leftBefore, usesSharedMemory());
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

INSTANTIATE_TEST_SUITE_P(All, Kills, testing::ValuesIn(roadsOfThisProcess()), nameOf);

} // namespace
