// The recorder and the replayer as processes, with a translator for tests behind the one.

#include "bridge/child_process.h"
#include "bridge/frames.h"
#include "capture/capture_reader.h"
#include "capture/capture_writer.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"
#include "replay/buffer_name.h"
#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/exchange/peek_envelope.h"

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

using capture::EFrame;
using testing::ElementsAre;
using testing::HasSubstr;
using vrx::EMessageKind;

namespace
{

constexpr const mp::wchar* kPing = WIDE("{\"command\": \"ping\"}");
constexpr const mp::wchar* kImport = WIDE("{\"command\": \"import\", \"options\": {}}");
constexpr const mp::wchar* kExport = WIDE("{\"command\": \"export\", \"options\": {}}");
constexpr const mp::wchar* kResult = WIDE("{\"code\": \"ok\"}");

class RecordTest : public testing::Test
{
protected:
    void SetUp() override { std::filesystem::remove(m_path); }
    void TearDown() override { std::filesystem::remove(m_path); }

    std::vector<std::string> recorder(const std::vector<std::string>& peerArguments = {}) const
    {
        std::vector<std::string> command = {VRX_TOOL, "record", "-o", m_path, "--", VRX_TOOL_TEST_PEER};
        command.insert(command.end(), peerArguments.begin(), peerArguments.end());
        return command;
    }

    std::vector<std::string> replayer() const { return {VRX_TOOL, "replay", m_path}; }

    std::vector<capture::Frame> frames() const
    {
        std::ifstream stream(m_path, std::ios::binary);
        capture::CaptureReader reader(stream);
        std::vector<capture::Frame> frames;
        for (capture::Frame frame; reader.next(frame);)
        {
            frames.push_back(frame);
        }
        EXPECT_FALSE(reader.isCut());
        return frames;
    }

    std::string m_path =
        (std::filesystem::temp_directory_path() /
         (std::string("vrx_record_") + testing::UnitTest::GetInstance()->current_test_info()->name() + ".vrxcap"))
            .string();
};

// What a host got of a command: the messages, without the names of buffers that were there, and their content.
struct Answer
{
    std::vector<mp::wstring> messages;
    std::vector<std::string> contents;

    bool operator==(const Answer& other) const { return messages == other.messages && contents == other.contents; }
};

mp::wstring replaced(mp::wstring text, const mp::wstring& what)
{
    const mp::wstring key = WIDE("\"exchange_object_data\": \"");
    return text.replace(text.find(key) + key.size(), what.size(), WIDE("*"));
}

class Host
{
public:
    explicit Host(const std::vector<std::string>& command)
        : m_translator(command)
    {
    }

    void send(const mp::wstring& message) { vrx::bridge::writeFrame(m_translator.input(), message); }

    // Loads what it is told of.
    Answer receive()
    {
        Answer answer;
        while (const auto message = vrx::bridge::readFrame(m_translator.output()))
        {
            const vrx::MessageHead head = vrx::peekEnvelope(*message);
            answer.messages.push_back(*message);
            mp::SharedBuffer<char> buffer;
            if (!head.bufferName.empty() && buffer.openExisting(head.bufferName))
            {
                const mp::SharedCopy content = buffer.copy();
                answer.contents.emplace_back(content.data(), content.data() + content.size());
                answer.messages.back() = replaced(*message, head.bufferName);
                m_names.push_back(head.bufferName);
                buffer.setRemoveOnClose(true);
            }
            if (head.kind == EMessageKind::Result)
            {
                break;
            }
        }
        return answer;
    }

    Answer ask(const mp::wstring& command)
    {
        send(command);
        return receive();
    }

    std::optional<int> end()
    {
        m_translator.end(std::chrono::seconds(20));
        return m_translator.exitCode();
    }

    const std::vector<mp::wstring>& names() const { return m_names; }

private:
    vrx::bridge::ChildProcess m_translator;
    std::vector<mp::wstring> m_names;
};

bool exists(const mp::wstring& name)
{
    return mp::SharedBuffer<char>().openExisting(name);
}

mp::wstring madeBuffer(const std::string& content)
{
    mp::wstring name = vrx::IExchangeObject::generateUUID();
    mp::SharedBuffer<char> buffer;
    buffer.open(name, false);
    buffer.write(content.data(), content.size());
    return name;
}

mp::wstring envelopeOf(const mp::wstring& buffer)
{
    return WIDE("{\"exchange_object_name\": \"exc_scene\", \"binary\": true, \"exchange_object_data\": \"") + buffer +
           WIDE("\"}");
}

std::vector<EFrame> kindsOf(const std::vector<capture::Frame>& frames)
{
    std::vector<EFrame> kinds;
    kinds.reserve(frames.size());
    for (const capture::Frame& frame : frames)
    {
        kinds.push_back(frame.kind);
    }
    return kinds;
}

} // namespace

TEST(BufferName, IsReplacedWhereItNamesTheBuffer)
{
    const auto replaced = [](const mp::wstring& message) {
        return mp::toNarrow(replay::withBufferName(message, WIDE("old"), WIDE("new")));
    };
    EXPECT_EQ(replaced(WIDE("{\"x\":\"old\",  \"exchange_object_data\" : \"old\", \"y\":\"old\"}")),
              "{\"x\":\"old\",  \"exchange_object_data\" : \"new\", \"y\":\"old\"}");
    EXPECT_EQ(
        replaced(WIDE("{\"exchange_object_data\":{\"a\":\"\\\"old\",\"shared_acis_buffer_name\":\"\\u006fld\"}}")),
        "{\"exchange_object_data\":{\"a\":\"\\\"old\",\"shared_acis_buffer_name\":\"new\"}}");
    EXPECT_EQ(replaced(WIDE("{\"exchange_object_data\": \"ol")), "{\"exchange_object_data\": \"ol");
}

TEST_F(RecordTest, PassesAllOnAndReplaysIt)
{
    Host direct({VRX_TOOL_TEST_PEER});
    Host recorded(recorder());
    std::vector<Answer> answers;
    for (const mp::wchar* const command : {kImport, kPing, kImport})
    {
        answers.push_back(direct.ask(command));
        EXPECT_EQ(recorded.ask(command), answers.back());
    }
    ASSERT_EQ(answers[0].messages.size(), 3U);
    ASSERT_EQ(answers[0].contents.size(), 1U);
    EXPECT_NE(answers[0].contents, answers[2].contents);
    EXPECT_EQ(recorded.end(), 0);

    // The recorded objects of a command one after the other, and then the last again.
    Host replayed(replayer());
    EXPECT_EQ(replayed.ask(kPing), answers[1]);
    EXPECT_EQ(replayed.ask(kImport), answers[0]);
    EXPECT_EQ(replayed.ask(kImport), answers[2]);
    EXPECT_EQ(replayed.ask(kImport), answers[2]);
    EXPECT_NE(replayed.names()[0], recorded.names()[0]);
    EXPECT_NE(replayed.names()[1], replayed.names()[2]);
    const Answer none = replayed.ask(kExport);
    ASSERT_EQ(none.messages.size(), 1U);
    EXPECT_THAT(mp::toNarrow(none.messages[0]), HasSubstr("The recording has no command export"));
    EXPECT_EQ(replayed.end(), 0);
}

TEST_F(RecordTest, KnowsTheAnswersOfCommandsThatCameTogether)
{
    Host host(recorder());
    host.send(kImport);
    host.send(kPing);
    const Answer imported = host.receive();
    const Answer pinged = host.receive();
    EXPECT_EQ(imported.messages.size(), 3U);
    EXPECT_EQ(host.end(), 0);
    Host replayed(replayer());
    EXPECT_EQ(replayed.ask(kPing), pinged);
    EXPECT_EQ(replayed.ask(kImport), imported);
}

TEST_F(RecordTest, KeepsTheTimesWhenAsked)
{
    constexpr std::chrono::milliseconds kGap{200};
    {
        capture::CaptureWriter writer(m_path, false);
        writer.fromHost(kPing);
        std::this_thread::sleep_for(kGap);
        writer.fromTranslator(kResult);
    }
    Host replayed({VRX_TOOL, "replay", "--real-time", m_path});
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_THAT(replayed.ask(kPing).messages, ElementsAre(kResult));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, kGap);
}

TEST_F(RecordTest, ReplaysAroundWhatNobodyAnswered)
{
    {
        capture::CaptureWriter writer(m_path, false);
        writer.fromHost(WIDE("{\"unknown\": 1}"));
        writer.fromHost(kPing);
        writer.fromTranslator(kResult);
        writer.fromHost(kExport);
        writer.fromHost(kResult);
        writer.fromTranslator(kResult);
    }
    // This host sends a command where the recorded one sent objects.
    Host replayed(replayer());
    replayed.send(kExport);
    replayed.send(kPing);
    EXPECT_THAT(replayed.receive().messages, ElementsAre(kResult));
    EXPECT_THAT(replayed.receive().messages, ElementsAre(kResult));
    EXPECT_EQ(replayed.end(), 0);
}

TEST_F(RecordTest, KeepsBuffersBeforeTheirMessages)
{
    Host host(recorder());
    host.ask(kImport);
    EXPECT_EQ(host.end(), 0);
    const std::vector<capture::Frame> all = frames();
    ASSERT_THAT(kindsOf(all), ElementsAre(EFrame::Start, EFrame::FromHost, EFrame::Buffer, EFrame::FromTranslator,
                                          EFrame::MissingBuffer, EFrame::FromTranslator, EFrame::FromTranslator,
                                          EFrame::UnloadedBuffers, EFrame::End));
    EXPECT_THAT(all[0].json, HasSubstr("\"recorder\":\"vrx "));
    EXPECT_EQ(all[1].message, kImport);
    EXPECT_EQ(all[2].name, host.names().at(0));
    EXPECT_EQ(std::string(all[2].content.begin(), all[2].content.end()), std::string(70000, 'b'));
    EXPECT_EQ(vrx::peekEnvelope(all[3].message).bufferName, all[2].name);
    EXPECT_EQ(all[4].name, WIDE("00000000-0000-4000-8000-000000000000"));
    EXPECT_EQ(all[6].message, WIDE("{\"code\":\"ok\", \"message\":\"\xD800\"}"));
    EXPECT_TRUE(all[7].names.empty());
    EXPECT_EQ(all[8].json, "{\"exit_code\":0,\"text\":\"it exited with code 0\"}");
}

TEST_F(RecordTest, KeepsWhatAHostSendsAndDropsItInAReplay)
{
    const mp::wstring first = madeBuffer("first");
    Host host(recorder());
    host.send(kExport);
    host.send(envelopeOf(first));
    const Answer answer = host.ask(kResult);
    // The peer loads nothing, and the host has not ended: it removes the buffer itself.
    EXPECT_EQ(host.end(), 0);
    EXPECT_TRUE(mp::SharedBuffer<char>::remove(first));
    const std::vector<capture::Frame> all = frames();
    ASSERT_THAT(kindsOf(all),
                ElementsAre(EFrame::Start, EFrame::FromHost, EFrame::Buffer, EFrame::FromHost, EFrame::FromHost,
                            EFrame::FromTranslator, EFrame::UnloadedBuffers, EFrame::End));
    EXPECT_THAT(all[6].names, ElementsAre(first));

    const mp::wstring second = madeBuffer("second");
    Host replayed(replayer());
    replayed.send(kExport);
    replayed.send(envelopeOf(second));
    EXPECT_EQ(replayed.ask(kResult), answer);
    EXPECT_FALSE(exists(second));
    EXPECT_EQ(replayed.end(), 0);
}

TEST_F(RecordTest, ATranslatorThatDiesDiesInTheReplayToo)
{
    Host host(recorder({"dies"}));
    const Answer answer = host.ask(kImport);
    EXPECT_EQ(answer.messages.size(), 2U);
    EXPECT_EQ(host.end(), 3);
    EXPECT_EQ(frames().back().json, "{\"exit_code\":3,\"text\":\"it exited with code 3\"}");

    Host replayed(replayer());
    EXPECT_EQ(replayed.ask(kImport), answer);
    EXPECT_EQ(replayed.end(), 1);
}

TEST_F(RecordTest, RemovesWhatADeadTranslatorToldNobody)
{
    const vrx::bridge::BufferJournal journal;
    vrx::bridge::ChildProcess translator(recorder({"dies"}), &journal);
    vrx::bridge::writeFrame(translator.input(), kImport);
    while (vrx::bridge::readFrame(translator.output()))
    {
    }
    translator.end(std::chrono::seconds(20));
    ASSERT_EQ(journal.names().size(), 2U);
    // This host was told of the first one, and may load it yet.
    EXPECT_TRUE(mp::SharedBuffer<char>::remove(journal.names()[0]));
    EXPECT_FALSE(exists(journal.names()[1]));
    EXPECT_THAT(frames()[frames().size() - 2].names, ElementsAre(journal.names()[0]));
}

TEST_F(RecordTest, RemovesWhatAHostWasToldOfThatHangsUp)
{
    const vrx::bridge::BufferJournal journal;
    vrx::bridge::ChildProcess translator(recorder({"dies"}), &journal);
    vrx::bridge::writeFrame(translator.input(), kPing);
    ASSERT_TRUE(vrx::bridge::readFrame(translator.output()));
    vrx::bridge::writeFrame(translator.input(), kImport);
    translator.end(std::chrono::seconds(20));
    ASSERT_EQ(journal.names().size(), 2U);
    EXPECT_FALSE(exists(journal.names()[0]));
    EXPECT_FALSE(exists(journal.names()[1]));
}

#ifndef _WIN32 // where a recorder that is killed takes its translator with it at once
TEST_F(RecordTest, EndsATranslatorThatHangs)
{
    const mp::wstring buffer = madeBuffer("nobody reads of it");
    vrx::bridge::ChildProcess host({"sh", "-c", R"(exec 4<&0; "$@" <&4 4<&- 3>&1 & sleep 0.2)", "sh", VRX_TOOL,
                                    "record", "-o", m_path, "--", VRX_TOOL_TEST_PEER, "hangs"});
    vrx::bridge::writeFrame(host.input(), kExport);
    // More than the pipe to the translator holds.
    vrx::bridge::writeFrame(host.input(), mp::wstring(1U << 20U, 'x'));
    vrx::bridge::writeFrame(host.input(), envelopeOf(buffer));
    host.closeInput();
    // All who have it have ended then.
    while (vrx::bridge::readFrame(host.output()))
    {
    }
    EXPECT_THAT(frames().back().json, HasSubstr("Terminated"));
    EXPECT_FALSE(exists(buffer));
}
#endif

TEST_F(RecordTest, PassesOnWhatIsNoMessage)
{
    vrx::bridge::ChildProcess translator(recorder({"prints"}));
    vrx::bridge::writeFrame(translator.input(), kPing);
    ASSERT_TRUE(vrx::bridge::readFrame(translator.output()));
    translator.closeInput();
    std::string passed;
    char piece[64];
    while (const std::size_t size = translator.output().readSome(piece, sizeof(piece)))
    {
        passed.append(piece, size);
    }
    EXPECT_EQ(passed, "a stray line\n");
    EXPECT_EQ(translator.end(std::chrono::seconds(20)), "it exited with code 0");
    std::string kept;
    for (const capture::Frame& frame : frames())
    {
        if (frame.kind == EFrame::StrayFromTranslator)
        {
            kept.append(frame.content.begin(), frame.content.end());
        }
    }
    EXPECT_EQ(kept, passed);
}

TEST_F(RecordTest, OverwritesNoFileUnasked)
{
    std::ofstream(m_path) << "mine";
    EXPECT_EQ(Host(recorder()).end(), 3);
    EXPECT_EQ(std::filesystem::file_size(m_path), 4U);
    EXPECT_EQ(Host({VRX_TOOL, "record", "--force", "-o", m_path, "--", VRX_TOOL_TEST_PEER}).end(), 0);
    EXPECT_GT(frames().size(), 0U);
    EXPECT_EQ(Host({VRX_TOOL, "record", "-o", "-", "--", VRX_TOOL_TEST_PEER}).end(), 2);
    EXPECT_EQ(Host({VRX_TOOL, "record", "-o", m_path}).end(), 2);
}
