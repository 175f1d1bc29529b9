#include "bridge/bridge.h"

#include <gtest/gtest.h>

#include <csignal>
#include <string>
#include <thread>

using namespace vrx::bridge;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace
{

class Frames : public testing::Test
{
protected:
    const Stream& reader() const { return m_pipe.readEnd; }
    const Stream& writer() const { return m_pipe.writeEnd; }
    void put(const std::string& bytes) const { writer().writeAll(bytes.data(), bytes.size()); }
    void closeReader() { m_pipe.readEnd.close(); }
    void closeWriter() { m_pipe.writeEnd.close(); }

private:
    Pipe m_pipe = Stream::pipe();
};

TEST_F(Frames, CarryAnyUnitsOneBehindTheOther)
{
    mp::wstring odd = WIDE("a\u4E2D");
    odd += mp::wchar(0);
    odd += mp::wchar(0xD800);
    odd += mp::wchar(0xFFFF);
    writeFrame(writer(), odd);
    writeFrame(writer(), {});
    closeWriter();
    EXPECT_EQ(readFrame(reader()), odd);
    EXPECT_EQ(readFrame(reader()), mp::wstring());
    EXPECT_EQ(readFrame(reader()), std::nullopt);
}

TEST_F(Frames, AreLongerThanThePipe)
{
    const mp::wstring sent(3000000, WIDE('\u4E2D'));
    std::thread other([&] { writeFrame(writer(), sent); });
    EXPECT_TRUE(readFrame(reader()) == sent);
    other.join();
}

TEST_F(Frames, HaveTheBytesThatTheirCommentStates)
{
    put(std::string("\2\0\0\0A\0\x2D\x4E", 8));
    EXPECT_EQ(readFrame(reader()), mp::wstring(WIDE("A\u4E2D")));
}

class CutFrame : public testing::TestWithParam<std::size_t>
{
};

TEST_P(CutFrame, IsRefused)
{
    Pipe pipe = Stream::pipe();
    pipe.writeEnd.writeAll("\2\0\0\0A", GetParam());
    pipe.writeEnd.close();
    EXPECT_THROW(readFrame(pipe.readEnd), StreamError);
}

INSTANTIATE_TEST_SUITE_P(Sizes, CutFrame, testing::Values(2U, 5U));

TEST_F(Frames, AreNoTextWithoutACount)
{
    put("a stray line of text");
    EXPECT_THROW(readFrame(reader()), NoMessage);
}

TEST_F(Frames, AreNoLongerThanAMessageMayBe)
{
    constexpr std::size_t kMostUnits = 1U << 26;
    EXPECT_THROW(writeFrame(writer(), mp::wstring(kMostUnits + 1, WIDE('x'))), std::length_error);
    put(std::string("\1\0\0\4", 4));
    EXPECT_THROW(readFrame(reader()), NoMessage);
    put(std::string("\0\0\0\4", 4));
    EXPECT_THROW(readFrame(reader(), {steady_clock::now() + milliseconds(20), nullptr}), TimedOut);
}

TEST_F(Frames, GoOnWhereAWaitWasGivenUp)
{
    FrameReader frames(reader());
    put(std::string("\2\0\0\0A", 5));
    EXPECT_THROW(frames.read({steady_clock::now() + milliseconds(20), nullptr}), TimedOut);
    std::atomic<bool> cancelled = false;
    std::thread other([&] {
        std::this_thread::sleep_for(milliseconds(20));
        cancelled = true;
    });
    EXPECT_THROW(frames.read({std::nullopt, &cancelled}), Cancelled);
    other.join();
    put(std::string("\0B\0", 3));
    EXPECT_EQ(frames.read(), mp::wstring(WIDE("AB")));
}

TEST_F(Frames, AreAnErrorForAWriterWithoutAReader)
{
    closeReader();
    EXPECT_THROW(writeFrame(writer(), WIDE("text")), StreamError);
}

TEST_F(Frames, AreAnErrorOnAClosedStream)
{
    closeReader();
    EXPECT_THROW(readFrame(reader(), {steady_clock::now() + milliseconds(20), nullptr}), StreamError);
    EXPECT_THROW(static_cast<void>(reader().isReady()), StreamError);
    closeWriter();
    std::atomic<bool> cancelled = false;
    EXPECT_THROW(writeFrame(writer(), WIDE("text"), {std::nullopt, &cancelled}), StreamError);
}

TEST_F(Frames, AreKnownToBeThereBeforeTheyAreRead)
{
    EXPECT_FALSE(reader().isReady());
    put("x");
    EXPECT_TRUE(reader().isReady());
}

#ifndef _WIN32
TEST_F(Frames, LeaveASignalThatWasPending)
{
    sigset_t signal;
    sigemptyset(&signal);
    sigaddset(&signal, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signal, nullptr);
    std::raise(SIGPIPE);
    closeReader();
    EXPECT_THROW(writeFrame(writer(), WIDE("text")), StreamError);
    const timespec now = {};
    EXPECT_EQ(sigtimedwait(&signal, nullptr, &now), SIGPIPE);
    pthread_sigmask(SIG_UNBLOCK, &signal, nullptr);
}

TEST_F(Frames, AreNotWrittenForEverIntoAFullPipe)
{
    const mp::wstring longText(3000000, WIDE('x'));
    EXPECT_THROW(writeFrame(writer(), longText, {steady_clock::now() + milliseconds(20), nullptr}), TimedOut);
}
#endif

} // namespace
