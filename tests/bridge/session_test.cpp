#include "support.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <gmock/gmock.h>

#include <csignal>
#include <ostream>
#include <stdexcept>
#include <thread>

using testing::HasSubstr;
using testing::StartsWith;

namespace
{

struct SessionCase
{
    const char* name;
    const char* manner;
    std::vector<std::string> steps;
    const char* told; // behind the translator's name; up to how the process ended, which the systems tell in their ways
    std::size_t made; // at least
};

std::ostream& operator<<(std::ostream& stream, const SessionCase& row)
{
    return stream << row.name;
}

const SessionCase kCases[] = {
    {"WholeImport",
     "loads",
     {"stray", "one", "stray", "two"},
     "message now one\nexc_product_structure one\nmessage now two\nexc_product_structure two\nresult 1\nping 1\n",
     2},
    {"Bodies", "loads", {"bodies"}, "exc_block_geometry\nresult 1\nping 1\n", 1},
    {"LazyHost",
     "is-lazy",
     {"one", "two", "bodies"},
     "message now one\nexc_product_structure unloaded \nmessage now two\nexc_product_structure unloaded \n"
     "exc_block_geometry unloaded\nresult 1\nexc_product_structure one\nping 1\n",
     3},
    {"TranslatorThatLeaves",
     "dawdles",
     {"one", "two", "leave"},
     "message now one\nexc_product_structure one\nmessage now two\nexc_product_structure two\nresult 1\nping "
     "failure 0 ",
     2},
    {"HostThatPicks", "picks", {"one", "bodies"}, "message now one\nexc_block_geometry\nresult 1\nping 1\n", 2},
    {"NewerTranslator", "loads", {"newer"}, "result 1\nping 1\n", 1},
    {"KilledTranslator",
     "loads",
     {"one", "die"},
     "message now one\nexc_product_structure one\nfailure 0 The translator died: it ",
     1},
    {"KilledWithUntoldBuffer", "loads", {"untold", "die"}, "failure 0 The translator died: it ", 1},
    {"KilledWithinAMessage", "loads", {"untold", "cut", "die"}, "failure 0 The translator died: it ", 1},
    {"TranslatorThatExits", "loads", {"exit"}, "failure 0 The translator died: it exited with code 5.\n", 0},
    {"Garbage",
     "loads",
     {"untold", "garbage"},
     "failure 3 The translator sent no message: what stands on the pipe is no message\n",
     1},
    {"AnotherMessage", "loads", {"command"}, "failure 3 The translator sent neither an object nor a result.\n", 0},
    {"SecondAnswer",
     "dawdles",
     {"answer"},
     "result 3\nping failure 3 The translator sent an answer that nobody had asked for.\n",
     0},
    {"MissingBuffer",
     "loads",
     {"untold", "missing", "one"},
     "failure 4 What the translator sent can not be loaded: Failed to parse all bytes of type\n",
     1},
    {"NameTwice",
     "loads",
     {"untold", "twice"},
     "failure 3 The translator sent no message: An object has two members of the name exchange_object_name\n",
     1},
    {"BytesBehindAnObject",
     "loads",
     {"longer"},
     "failure 4 What the translator sent can not be loaded: Bytes stand behind the value\n",
     1},
    {"SizeLimit", "limits", {"one", "two"}, "message now one\nfailure 4 What the translator sent can not", 1},
    {"TimeLimit",
     "hurries",
     {"one", "hang"},
     "message now one\nexc_product_structure one\nfailure 1 The translator did not answer in time.\n",
     1},
    {"CancelByAListener",
     "cancels",
     {"one", "untold", "two"},
     "message now one\nexc_product_structure one\nfailure 2 The translator's work was cancelled.\n",
     1},
    {"DeafTranslator",
     "cancels",
     {"deaf", "one", "untold", "hang"},
     "message now one\nexc_product_structure one\nfailure 2 The translator's work was cancelled.\n",
     2},
    {"ListenerThatThrows", "throws", {"one", "two"}, "message now one\nthe listener has enough", 1},
};

class Session : public testing::TestWithParam<SessionCase>
{
};

TEST_P(Session, EndsWithNothingLeft)
{
    const test::Road road = test::road(GetParam().manner, GetParam().steps);
    EXPECT_THAT(road.told, StartsWith(std::string("peer\n") + GetParam().told));
    EXPECT_GE(road.made, GetParam().made);
    EXPECT_EQ(road.left, 0U);
}

INSTANTIATE_TEST_SUITE_P(All, Session, testing::ValuesIn(kCases), [](const auto& row) { return row.param.name; });

TEST(SessionStart, FailsWithTheProgramsName)
{
    try
    {
        vrx::bridge::HostSession session({"/no/such/program"});
        FAIL() << "started";
    }
    catch (const std::runtime_error& error)
    {
        EXPECT_THAT(error.what(), StartsWith("cannot start /no/such/program: "));
    }
}

TEST(SessionStart, TellsWhyATranslatorDoesNotSayWhatItIs)
{
    vrx::bridge::HostSession session({VRX_BRIDGE_TEST_PEER, "translator", "unable"});
    try
    {
        session.info();
        FAIL() << "has a description";
    }
    catch (const vrx::bridge::TranslatorFailure& failure)
    {
        EXPECT_STREQ(failure.what(), "The translator does not say what it is: no licence");
    }
}

#ifndef _WIN32
// As a program with windows starts it.
TEST(SessionStart, NeedsNoStandardError)
{
    vrx::bridge::HostSession session({"/bin/sh", "-c", "exec \"$0\" translator stray one 2>&-", VRX_BRIDGE_TEST_PEER});
    EXPECT_EQ(session.info().name(), WIDE("peer"));
    vrx::bridge::Listener listener;
    EXPECT_EQ(session.importFile(vrx::Command::newImportOptions(), listener).code(), vrx::Result::ECode::Ok);
}

TEST(SessionEnd, ByAnInterruptLeavesWhatIsIgnored)
{
    std::signal(SIGHUP, SIG_IGN); // as nohup does
    vrx::bridge::HostSession session({VRX_BRIDGE_TEST_PEER, "translator"});
    {
        const vrx::bridge::CancelOnInterrupt cancelling(session);
        EXPECT_THROW(vrx::bridge::CancelOnInterrupt{session}, std::logic_error);
        std::raise(SIGHUP);
        EXPECT_FALSE(session.isCancelled());
        std::raise(SIGINT);
        EXPECT_TRUE(session.isCancelled());
    }
    std::signal(SIGHUP, SIG_DFL);
}
#endif

class Keeper : public vrx::bridge::Listener
{
public:
    void onHead(const vrx::MessageHead& head) override { m_kept = head.bufferName; }
    void onObject(const std::shared_ptr<vrx::IExchangeObject>& object) override
    {
        std::dynamic_pointer_cast<vrx::ExcBlockGeometry>(object)->own(false);
    }
    const mp::wstring& kept() const { return m_kept; }

private:
    mp::wstring m_kept;
};

TEST(SessionEnd, LeavesWhatItsListenerKeeps)
{
    Keeper keeper;
    {
        vrx::bridge::HostSession session({VRX_BRIDGE_TEST_PEER, "translator", "bodies", "exit"});
        EXPECT_THROW(session.importFile(vrx::Command::newImportOptions(), keeper), vrx::bridge::TranslatorFailure);
    }
    EXPECT_TRUE(mp::SharedBuffer<char>::remove(keeper.kept()));
}

class KilledHost : public testing::TestWithParam<std::vector<std::string>>
{
};

// The translator hears of its host's death by the end of its input.
TEST_P(KilledHost, LeavesNothing)
{
    std::vector<std::string> command = {VRX_BRIDGE_TEST_PEER, "host"};
    command.insert(command.end(), GetParam().begin(), GetParam().end());
    const vrx::bridge::BufferJournal journal;
    vrx::bridge::ChildProcess host(command, &journal);
    EXPECT_THAT(test::readAll(host.output()), HasSubstr("dies"));
    host.end();
    const auto isClear = [&journal] {
        const std::vector<mp::wstring> names = journal.names();
        return !names.empty() && test::countOfLeft(names) == 0;
    };
    for (int tries = 0; tries < 500 && !isClear(); ++tries)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    EXPECT_TRUE(isClear());
}

INSTANTIATE_TEST_SUITE_P(All, KilledHost,
                         testing::Values(std::vector<std::string>{"dies", "one", "two"},
                                         std::vector<std::string>{"exports-and-dies", "dawdle"}));

} // namespace
