#include "support.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"
#include "vrx_api/vrx_api_exchange_structure.h"

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
     {"stray", "one", "untold", "stray", "two"},
     "message now one\nexc_product_structure one\nmessage now two\nexc_product_structure two\nresult 1\nping 1\n",
     3},
    {"Progress",
     "loads",
     {"progress", "one"},
     "progress 3\nstage 5\nlog half of it\nmessage now one\nexc_product_structure one\nresult 1\nping 1\n",
     1},
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
#ifndef _WIN32
    {"TranslatorThatIsToldToEnd",
     "dawdles",
     {"one", "two", "told"},
     "message now one\nexc_product_structure one\nmessage now two\nexc_product_structure two\nresult 1\nping "
     "failure 0 ",
     2},
#endif
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
     "failure 3 The translator sent no message: what stands on the pipe is no message: 1953701985 units are above the "
     "limit of 67108864\n",
     1},
    {"AnotherMessage", "loads", {"command"}, "failure 3 The translator sent neither an object nor a result.\n", 0},
    {"ResultWithoutACode",
     "loads",
     {"no-code"},
     "failure 3 The translator sent no result: Json document has no result code.\n",
     0},
    {"LateMessage", "dawdles", {"late"}, "result 1\nping 1\n", 0},
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

// What an operation that fails says, behind the number of its kind.
template <class Operation>
std::string failureOf(Operation operation)
{
    try
    {
        operation();
    }
    catch (const vrx::bridge::TranslatorFailure& failure)
    {
        return std::to_string(static_cast<int>(failure.kind())) + ' ' + failure.what();
    }
    return "none";
}

TEST(SessionStart, TellsWhyATranslatorDoesNotSayWhatItIs)
{
    vrx::bridge::HostSession unable({VRX_BRIDGE_TEST_PEER, "translator", "unable"});
    EXPECT_EQ(failureOf([&] { unable.info(); }), "3 The translator does not say what it is: no licence");
    EXPECT_THAT(failureOf([&] { unable.ping(); }), StartsWith("0 The translator has ended: it "));
    vrx::bridge::HostSession confused({VRX_BRIDGE_TEST_PEER, "translator", "untold", "command"});
    EXPECT_EQ(failureOf([&] { confused.info(); }), "3 The translator does not say what it is.");
}

class Messages : public vrx::bridge::Listener
{
public:
    void onMessage(const mp::wstring& text) override { m_texts.push_back(text); }
    const std::vector<mp::wstring>& texts() const { return m_texts; }

private:
    std::vector<mp::wstring> m_texts;
};

TEST(SessionCommand, GoesByTheInterfaceOfItsOptions)
{
    using vrx::Command;
    vrx::bridge::HostSession session({VRX_BRIDGE_TEST_PEER, "translator"});
    session.setTimeLimit(std::chrono::milliseconds::max());
    Messages messages;
    const auto nothing = [] { return nullptr; };
    session.importFile(Command::newImportOptions(), messages);
    session.exportFile(Command::newExportOptions(), nothing, messages);
    EXPECT_TRUE(messages.texts().empty());
    session.importFile(Command::newLegacyImportOptions(), messages);
    session.exportFile(Command::newLegacyExportOptions(), nothing, messages);
    EXPECT_EQ(messages.texts(), std::vector<mp::wstring>(2, WIDE("by the older interface")));
}

TEST(SessionCommand, AsksForNoMoreObjectsAfterTheAnswer)
{
    vrx::bridge::HostSession session({VRX_BRIDGE_TEST_PEER, "translator", "stray"});
    vrx::bridge::Listener listener;
    constexpr int kAll = 300;
    int asked = 0;
    const auto next = [&asked] {
        std::this_thread::sleep_for(std::chrono::milliseconds(asked == 0 ? 0 : 10));
        return ++asked == kAll ? nullptr : std::make_shared<vrx::ExcProductStructure>();
    };
    EXPECT_EQ(session.exportFile(vrx::Command::newExportOptions(), next, listener).code(), vrx::Result::ECode::Error);
    EXPECT_LT(asked, kAll);
}

#ifndef _WIN32
std::string failureOfLongCommand(vrx::bridge::HostSession& session)
{
    const auto options = vrx::Command::newImportOptions();
    options->setFile(mp::wstring(3000000, WIDE('x')));
    vrx::bridge::Listener listener;
    return failureOf([&] { session.importFile(options, listener); });
}

TEST(SessionCommand, FailsWhenTheTranslatorDoesNotTakeIt)
{
    vrx::bridge::HostSession deaf({"sh", "-c", "exec <&-; exec sleep 60"});
    EXPECT_EQ(failureOfLongCommand(deaf),
              "0 The translator does not take commands: it was ended by signal 15 (Terminated).");
    vrx::bridge::HostSession hanging({VRX_BRIDGE_TEST_PEER, "hang"});
    hanging.setTimeLimit(std::chrono::milliseconds(20));
    EXPECT_EQ(failureOfLongCommand(hanging), "1 The translator did not take a message in time.");
    vrx::bridge::HostSession cancelled({VRX_BRIDGE_TEST_PEER, "hang"});
    cancelled.cancel();
    EXPECT_EQ(failureOfLongCommand(cancelled), "2 The translator's work was cancelled.");
}

// As a program with windows starts it.
TEST(SessionStart, NeedsNoStandardError)
{
    vrx::bridge::HostSession session({"/bin/sh", "-c", "exec \"$0\" translator stray one 2>&-", VRX_BRIDGE_TEST_PEER});
    EXPECT_EQ(session.info().name(), WIDE("peer"));
    vrx::bridge::Listener listener;
    EXPECT_EQ(session.importFile(vrx::Command::newImportOptions(), listener).code(), vrx::Result::ECode::Ok);
    vrx::bridge::ChildProcess host({"/bin/sh", "-c", "exec \"$0\" host loads stray 2>&-", VRX_BRIDGE_TEST_PEER});
    EXPECT_EQ(test::readAll(host.output()), "peer\nresult 1\nping 1\n");
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
        EXPECT_FALSE(vrx::bridge::CancelOnInterrupt::wasInterrupted());
        std::raise(SIGINT);
        EXPECT_TRUE(session.isCancelled());
        EXPECT_TRUE(vrx::bridge::CancelOnInterrupt::wasInterrupted());
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
