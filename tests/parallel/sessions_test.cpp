#include "bridge/bridge.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"
#include "tests/parallel/threads.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <csignal>
#endif

#include <chrono>

using namespace vrx;
using bridge::HostSession;
using bridge::TranslatorFailure;
using test::inThreads;
using test::require;

namespace
{

using Clock = std::chrono::steady_clock;
constexpr int kWhole = 0;
constexpr int kDying = 1;

std::vector<std::string> translator(const std::vector<std::string>& steps)
{
    std::vector<std::string> command = {VRX_BRIDGE_TEST_PEER, "translator"};
    command.insert(command.end(), steps.begin(), steps.end());
    return command;
}

class Names : public bridge::Listener
{
public:
    void onObject(const std::shared_ptr<IExchangeObject>& object) override
    {
        names += mp::toNarrow(std::dynamic_pointer_cast<ExcProductStructure>(object)->productName()) + ' ';
    }

    std::string names;
};

// How the import fails.
TranslatorFailure::EKind failureOf(HostSession& session)
{
    try
    {
        Names names;
        session.importFile(Command::newImportOptions(), names);
    }
    catch (const TranslatorFailure& failure)
    {
        return failure.kind();
    }
    throw std::runtime_error("the import did not fail");
}

// Sessions that start, work and end at the same time: a translator that dies, or is cancelled by another thread, is
// noticed while those of other sessions live on, which would not be so if they held its pipes.
TEST(ThreadsSessions, DoNotMeet)
{
    inThreads(
        [](int number) {
            const Clock::time_point begin = Clock::now();
            if (number % 3 == kWhole)
            {
                HostSession session(translator({"one", "two"}));
                for (int i = 0; i < 3; ++i)
                {
                    Names names;
                    const Result result = session.importFile(Command::newImportOptions(), names);
                    require(result.code() == Result::ECode::Ok && names.names == "one two ", names.names);
                }
            }
            else if (number % 3 == kDying)
            {
                HostSession session(translator({"one", "die"}));
                require(failureOf(session) == TranslatorFailure::EKind::Died, "it did not die");
            }
            else
            {
                HostSession session(translator({"one", "hang"}));
                auto canceller = std::async(std::launch::async, [&session] {
                    std::this_thread::sleep_for(std::chrono::milliseconds(200));
                    session.cancel();
                });
                require(failureOf(session) == TranslatorFailure::EKind::Cancelled, "it was not cancelled");
            }
            require(Clock::now() - begin < std::chrono::seconds(30), "a session waited for another");
        },
        6);
}

// Channels that are made one after the other keep them while other threads make buffers.
TEST(ThreadsSessions, KeepJournals)
{
    inThreads([](int) {
        bridge::keepInheritedJournals();
        mp::SharedBuffer<char> buffer;
        buffer.open(IExchangeObject::generateUUID(), true);
    });
}

#ifndef _WIN32
// An interrupt may come to any thread, also while the session that it would cancel goes.
TEST(ThreadsSessions, MayBeInterruptedWhileTheyEnd)
{
    std::atomic<bool> isOver = false;
    std::signal(SIGHUP, [](int) {}); // when no session takes it
    std::thread interrupting([&isOver] {
        while (!isOver)
        {
            std::raise(SIGHUP);
            std::this_thread::yield();
        }
    });
    for (int i = 0; i < 30; ++i)
    {
        HostSession session(translator({}));
        const bridge::CancelOnInterrupt cancelling(session);
        while (!session.isCancelled())
        {
            std::this_thread::yield();
        }
    }
    isOver = true;
    interrupting.join();
    std::signal(SIGHUP, SIG_DFL);
}
#endif

} // namespace
