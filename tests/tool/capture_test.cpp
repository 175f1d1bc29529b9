#include "capture/capture_bytes.h"
#include "capture/capture_reader.h"
#include "capture/capture_writer.h"
#include "mp/narrow.h"
#include "tests/support/helpers.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <system_error>

using capture::CaptureError;
using capture::EFrame;
using test::bytes;
using testing::ElementsAre;
using testing::HasSubstr;

namespace
{

// The example of docs/capture_format.md.
const std::string kHeader = bytes("89565258 0D0A1A0A 0100 0100 8514F414");
const std::vector<std::string> kFrames = {
    bytes("01000000 0000000000000000 0200000000000000 7B7D A1A88B59"),
    bytes("02000000 E803000000000000 0400000000000000 7B007D00 5CFD2B25"),
    bytes("04000000 D007000000000000 0B00000000000000 02000000 62003100 010203 E193BA30"),
    bytes("05000000 3408000000000000 0400000000000000 62003200 2C6CCD89"),
    bytes("03000000 C409000000000000 0400000000000000 5B005D00 73656725"),
    bytes("06000000 B80B000000000000 0800000000000000 02000000 62003100 27EBDD8B"),
    bytes("07000000 B90B000000000000 0200000000000000 7B7D 7FFC7DBB"),
};

std::string example()
{
    std::string all = kHeader;
    for (const std::string& frame : kFrames)
    {
        all += frame;
    }
    return all;
}

std::string frameOf(std::uint32_t kind, const std::string& payload)
{
    std::string frame;
    capture::appendNumber(frame, kind);
    capture::appendNumber(frame, std::uint64_t{7});
    capture::appendNumber(frame, std::uint64_t{payload.size()});
    frame += payload;
    capture::appendNumber(frame, capture::checksum(0, frame.data(), frame.size()));
    return frame;
}

// The parts of a frame in one line.
std::string lineOf(const capture::Frame& frame)
{
    std::string line = std::to_string(static_cast<std::uint32_t>(frame.kind)) + " @" +
                       std::to_string(frame.time.count()) + " " + frame.json + mp::toNarrow(frame.message) +
                       mp::toNarrow(frame.name) + ":" + std::string(frame.content.begin(), frame.content.end());
    for (const mp::wstring& name : frame.names)
    {
        line += " " + mp::toNarrow(name);
    }
    return line;
}

struct Contents
{
    std::vector<std::string> lines;
    bool isCut = false;
    std::string error;
};

Contents read(const std::string& file)
{
    std::istringstream stream(file);
    Contents contents;
    contents.error = test::thrownBy<CaptureError>([&] {
        capture::CaptureReader reader(stream);
        capture::Frame frame;
        while (reader.next(frame))
        {
            contents.lines.push_back(lineOf(frame));
        }
        contents.isCut = reader.isCut();
    });
    return contents;
}

// A path of a file that goes with the test.
class ScratchFile
{
public:
    ScratchFile() { std::filesystem::remove(m_path); }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;
    ~ScratchFile() { std::filesystem::remove(m_path); }

    const std::filesystem::path& path() const { return m_path; }

    std::string content() const
    {
        std::ifstream stream(m_path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

private:
    std::filesystem::path m_path =
        std::filesystem::temp_directory_path() /
        (std::string("vrx_") + testing::UnitTest::GetInstance()->current_test_info()->name() + ".vrxcap");
};

} // namespace

TEST(CaptureReader, ReadsTheExampleOfTheDocument)
{
    const Contents contents = read(example());
    EXPECT_THAT(contents.lines, ElementsAre("1 @0 {}:", "2 @1000 {}:", "4 @2000 b1:\x01\x02\x03",
                                            "5 @2100 b2:", "3 @2500 []:", "6 @3000 : b1", "7 @3001 {}:"));
    EXPECT_FALSE(contents.isCut);
    EXPECT_EQ(contents.error, "nothing");
}

TEST(CaptureReader, KeepsAllWholeFramesOfAFileCutAnywhere)
{
    const std::string whole = example();
    for (std::size_t size = 0; size < kHeader.size(); ++size)
    {
        EXPECT_EQ(read(whole.substr(0, size)).error, "this is no capture") << size;
    }
    std::size_t begin = kHeader.size();
    for (std::size_t count = 0; count < kFrames.size(); ++count)
    {
        for (std::size_t more = 0; more < kFrames[count].size(); ++more)
        {
            const Contents contents = read(whole.substr(0, begin + more));
            EXPECT_EQ(contents.lines.size(), count);
            EXPECT_EQ(contents.isCut, more != 0) << begin + more;
            EXPECT_EQ(contents.error, "nothing") << begin + more;
        }
        begin += kFrames[count].size();
    }
}

TEST(CaptureReader, TellsEachFlippedBit)
{
    const std::string whole = example();
    const Contents sound = read(whole);
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit)
    {
        std::string damaged = whole;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ 1 << bit % 8);
        const Contents contents = read(damaged);
        // A size that became larger leads behind the end of the file.
        EXPECT_TRUE(contents.isCut || contents.error != "nothing") << bit;
        ASSERT_LT(contents.lines.size(), sound.lines.size()) << bit;
        EXPECT_TRUE(std::equal(contents.lines.begin(), contents.lines.end(), sound.lines.begin())) << bit;
    }
}

TEST(CaptureReader, TellsThePlaceOfTheDamage)
{
    std::string damaged = example();
    damaged[kHeader.size() + kFrames[0].size() + 21] ^= 1;
    EXPECT_EQ(read(damaged).error, "the capture is damaged in the frame at byte 42");
}

TEST(CaptureReader, PassesOverUnknownKindsAndReadsHigherMinorVersions)
{
    std::string later = kHeader.substr(0, 10) + bytes("0700");
    capture::appendNumber(later, capture::checksum(0, later.data(), later.size()));
    later += frameOf(10, "something") + kFrames[1] + frameOf(0, "") + frameOf(0xFFFFFFFF, "x");
    const Contents contents = read(later);
    EXPECT_THAT(contents.lines, ElementsAre("2 @1000 {}:"));
    EXPECT_FALSE(contents.isCut);
}

TEST(CaptureReader, RefusesAHigherMajorVersion)
{
    std::string later = kHeader.substr(0, 8) + bytes("0200 0000");
    capture::appendNumber(later, capture::checksum(0, later.data(), later.size()));
    EXPECT_EQ(read(later + kFrames[0]).error, "the capture has format version 2; this program reads 1");
}

TEST(CaptureReader, TakesNoMemoryForASizeThatIsNotThere)
{
    for (const char* const size : {"0000000000000080", "FFFFFFFFFFFFFFFF", "FFFFFFFFFFFFFF7F"})
    {
        const Contents contents = read(kHeader + bytes(std::string("04000000 0000000000000000 ") + size) + "some");
        EXPECT_TRUE(contents.isCut) << size;
    }
}

TEST(CaptureReader, RefusesPayloadsOfAWrongForm)
{
    const std::string refusal = "the capture has a frame of a wrong form at byte 16";
    EXPECT_EQ(read(kHeader + frameOf(2, "odd")).error, refusal);
    EXPECT_EQ(read(kHeader + frameOf(4, "")).error, refusal);
    EXPECT_EQ(read(kHeader + frameOf(4, bytes("02000000 6200 00"))).error, refusal);
    EXPECT_EQ(read(kHeader + frameOf(4, bytes("FFFFFFFF 6200"))).error, refusal);
    EXPECT_EQ(read(kHeader + frameOf(5, "odd")).error, refusal);
    EXPECT_EQ(read(kHeader + frameOf(6, bytes("00000000 010000"))).error, refusal);
}

TEST(CaptureReader, GoesToThePlaceOfAFrame)
{
    std::istringstream stream(example());
    capture::CaptureReader reader(stream);
    capture::Frame frame;
    std::vector<std::uint64_t> places;
    while (reader.next(frame))
    {
        places.push_back(frame.place);
    }
    for (const std::size_t index : {4U, 2U})
    {
        reader.goTo(places[index]);
        ASSERT_TRUE(reader.next(frame));
        EXPECT_EQ(frame.place, places[index]);
        EXPECT_EQ(lineOf(frame), read(example()).lines[index]);
    }
}

TEST(CaptureWriter, WritesWhatTheReaderReads)
{
    const ScratchFile file;
    const mp::wstring odd = {0xD800, 0, 0xFFFF, 'x'};
    const std::string large(3'000'000, 'z');
    {
        capture::CaptureWriter writer(file.path(), false);
        writer.start(R"({"recorder": "test"})");
        writer.fromHost(odd);
        writer.buffer(WIDE("b1"), large.data(), large.size());
        writer.buffer(WIDE(""), nullptr, 0);
        writer.missingBuffer(WIDE("b2"));
        writer.fromTranslator(WIDE(""));
        writer.unloadedBuffers({WIDE("b1"), WIDE("")});
        writer.strayFromTranslator("a line");
        writer.end("{}");
        // What was written is there before the writer has ended.
        EXPECT_EQ(read(file.content()).lines.size(), 9U);
    }
    std::istringstream stream(file.content());
    capture::CaptureReader reader(stream);
    std::vector<capture::Frame> frames;
    for (capture::Frame frame; reader.next(frame);)
    {
        EXPECT_GE(frame.time, frames.empty() ? frame.time : frames.back().time);
        frames.push_back(frame);
    }
    ASSERT_EQ(frames.size(), 9U);
    EXPECT_EQ(frames[0].json, R"({"recorder": "test"})");
    EXPECT_EQ(frames[1].message, odd);
    EXPECT_EQ(frames[2].name, WIDE("b1"));
    EXPECT_EQ(std::string(frames[2].content.begin(), frames[2].content.end()), large);
    EXPECT_TRUE(frames[3].name.empty() && frames[3].content.empty());
    EXPECT_EQ(frames[4].kind, EFrame::MissingBuffer);
    EXPECT_EQ(frames[5].kind, EFrame::FromTranslator);
    EXPECT_THAT(frames[6].names, ElementsAre(WIDE("b1"), WIDE("")));
    EXPECT_EQ(std::string(frames[7].content.begin(), frames[7].content.end()), "a line");
    EXPECT_EQ(frames[8].kind, EFrame::End);
}

TEST(CaptureWriter, OverwritesOnlyWhenItMay)
{
    const ScratchFile file;
    std::ofstream(file.path()) << "a longer text than a capture's header";
    EXPECT_THROW(capture::CaptureWriter(file.path(), false), std::system_error);
    EXPECT_THAT(file.content(), HasSubstr("a longer text"));
    capture::CaptureWriter(file.path(), true).end("{}");
    EXPECT_THAT(read(file.content()).lines.size(), 1U);
}
