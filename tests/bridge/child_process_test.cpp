#include "support.h"
#include "vrx_api/exchange/exchange_object.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

using namespace vrx::bridge;
using std::chrono::milliseconds;
using std::chrono::seconds;
using testing::ElementsAre;

namespace
{

std::vector<std::string> peer(std::vector<std::string> words)
{
    words.insert(words.begin(), VRX_BRIDGE_TEST_PEER);
    return words;
}

TEST(ChildProcess, GetsItsWordsAsTheyAre)
{
    const std::vector<std::string> words = {
        "plain", "two words", "", R"(a "quoted" one)", R"(C:\folder\)", R"(\"\\" \)", "%PATH% $HOME *", "tab\tbed"};
    std::vector<std::string> command = words;
    command.insert(command.begin(), "words");
    ChildProcess child(peer(command));
    std::string expected;
    for (const std::string& word : words)
    {
        expected += word + '\n';
    }
    EXPECT_EQ(test::readAll(child.output()), expected);
    EXPECT_EQ(child.end(), "it exited with code 7");
    EXPECT_EQ(child.exitCode(), 7);
}

TEST(ChildProcess, IsKilledWhenItDoesNotEnd)
{
    ChildProcess child(peer({"hang"}));
    EXPECT_FALSE(child.wait(milliseconds(20)));
    const std::string end = child.end(milliseconds(20));
    EXPECT_THAT(end, testing::AnyOf("it was ended by signal 15 (Terminated)", "it was killed"));
    EXPECT_EQ(child.exitCode(), std::nullopt);
}

#ifndef _WIN32
TEST(ChildProcess, IsKilledWhenItDoesNotHear)
{
    ChildProcess child({"sh", "-c", "trap '' TERM; echo ready; while :; do sleep 1; done"});
    char text[16] = "";
    ASSERT_GT(child.output().readSome(text, sizeof(text)), 0U);
    EXPECT_EQ(child.end(milliseconds(1)), "it was ended by signal 9 (Killed)");
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "a child is not cleared away";
}

TEST(ChildProcess, HasTheEnvironmentAndStandardError)
{
    ::setenv("VRX_TEST_WORDS", "two words", 1);
    Pipe pipe = Stream::pipe();
    const OwnedHandle before(::dup(STDERR_FILENO));
    ::dup2(static_cast<int>(pipe.writeEnd.handle().get()), STDERR_FILENO);
    ChildProcess child({"sh", "-c", "printf %s \"$VRX_TEST_WORDS\" >&2"});
    ::dup2(static_cast<int>(before.get()), STDERR_FILENO);
    pipe.writeEnd.close();
    EXPECT_EQ(test::readAll(pipe.readEnd), "two words");
    EXPECT_EQ(child.end(seconds(20)), "it exited with code 0");
}

TEST(ChildProcess, LeavesOtherChildren)
{
    ChildProcess other(peer({"words"}));
    {
        ChildProcess child(peer({"words"}));
        child.end(seconds(20));
        siginfo_t end = {};
        ASSERT_EQ(::waitid(P_ALL, 0, &end, WEXITED | WNOWAIT), 0);
    }
    EXPECT_EQ(other.end(seconds(20)), "it exited with code 7");
}

TEST(ChildProcess, TakesSignalsThatItsStarterIgnores)
{
    for (const int signal : {SIGPIPE, SIGTERM, SIGXFSZ})
    {
        const auto before = std::signal(signal, SIG_IGN);
        ChildProcess child({"sh", "-c", "kill -" + std::to_string(signal) + " $$"});
        EXPECT_THAT(child.end(seconds(20)), testing::StartsWith("it was ended by signal " + std::to_string(signal)));
        std::signal(signal, before);
    }
}

TEST(ChildProcess, EndsWhenNobodyReadsWhatItWrites)
{
    ChildProcess child({"yes"});
    EXPECT_EQ(child.end(seconds(20)), "it was ended by signal 13 (Broken pipe)");
}

TEST(ChildProcess, EndsWithItsObject)
{
    char number[16] = "";
    {
        const ChildProcess child({"sh", "-c", "echo $$; exec sleep 60"});
        ASSERT_GT(child.output().readSome(number, sizeof(number) - 1), 0U);
    }
    EXPECT_EQ(::kill(std::stoi(number), 0), -1);
}

TEST(ChildProcess, CanBeKilledWithWhatItsStarterLeaves)
{
    const std::string script = "(trap '' TERM; echo ready; exec \"$0\" hang) & wait";
    ChildProcess child({"sh", "-c", script, VRX_BRIDGE_TEST_PEER});
    char text[16] = "";
    ASSERT_GT(child.output().readSome(text, sizeof(text)), 0U);
    child.terminate();
    ASSERT_TRUE(child.wait(seconds(20)));
    EXPECT_FALSE(child.output().isReady());
    child.kill();
    EXPECT_EQ(test::readAll(child.output()), "");
    EXPECT_EQ(child.end(), "it was ended by signal 15 (Terminated)");
}

TEST(ChildProcess, EndsWhereNobodyWaitsForChildren)
{
    const auto before = std::signal(SIGCHLD, SIG_IGN);
    ChildProcess child(peer({"words"}));
    EXPECT_EQ(child.end(seconds(20)), "it ended");
    EXPECT_EQ(child.exitCode(), std::nullopt);
    std::signal(SIGCHLD, before);
}
#endif

TEST(ChildProcess, NotesItsBuffersInEachJournal)
{
    const mp::wstring name = vrx::IExchangeObject::generateUUID();
    const BufferJournal journal;
    const BufferJournal other;
    ChildProcess child(peer({"leave", mp::toNarrow(name)}), &journal);
    EXPECT_EQ(child.end(seconds(20)), "it exited with code 0");
    EXPECT_THAT(journal.names(), ElementsAre(name));
    EXPECT_TRUE(other.names().empty());
    EXPECT_TRUE(mp::SharedBuffer<char>::remove(name));
}

#ifndef _WIN32
TEST(BufferJournal, TellsNamesBehindAnyBytes)
{
    const BufferJournal journal;
    std::string bytes = std::string(5000, 'x') + '\0';
    std::vector<mp::wstring> names;
    for (int i = 0; i < 300; ++i)
    {
        names.push_back(vrx::IExchangeObject::generateUUID());
        bytes += mp::toNarrow(names.back()) + '\0';
    }
    ASSERT_EQ(::write(static_cast<int>(journal.inherited()), bytes.data(), bytes.size()),
              static_cast<ssize_t>(bytes.size()));
    std::vector<mp::wstring> told = journal.names();
    ASSERT_EQ(told.size(), names.size() + 1);
    told.erase(told.begin());
    EXPECT_TRUE(told == names);
}

TEST(BufferJournal, OfAHostileChildCostsLittle)
{
    const BufferJournal journal;
    ASSERT_EQ(::ftruncate(static_cast<int>(journal.inherited()), off_t{1} << 40U), 0);
    EXPECT_TRUE(journal.names().empty());
}
#endif

TEST(UndeliveredBuffers, LeavesWhatIsNoBufferOfThisLibrary)
{
    const mp::wstring foreign = WIDE("other_program_") + vrx::IExchangeObject::generateUUID();
    mp::SharedBuffer<char> buffer;
    buffer.open(foreign, true);
    {
        UndeliveredBuffers undelivered;
        undelivered.add(foreign);
        undelivered.remove(foreign);
    }
    EXPECT_TRUE(mp::SharedBuffer<char>().openExisting(foreign));
}

} // namespace
