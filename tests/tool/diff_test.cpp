#include "capture/capture_writer.h"
#include "comparison/inputs.h"
#include "files.h"
#include "printing/scalar_text.h"
#include "tests/support/json_text.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/json_binary_io.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace
{

using test::TemporaryFile;
using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

Lines differences(const std::string& a, const std::string& b, bool all = false, double tolerance = 1e-9)
{
    Lines lines;
    const auto text = [](const vrx::JsonValue* value) {
        return value == nullptr ? "nothing" : printing::briefText(*value);
    };
    comparison::compareInputs(
        a, b, {tolerance, all, {WIDE("passing")}}, input::kDefaultLimit, [&](const comparison::Line& line) {
            const comparison::Difference* const found = line.inTree;
            lines.push_back(line.message + '|' +
                            (found == nullptr   ? line.text
                             : found->more != 0 ? found->pointer + " more " + std::to_string(found->more)
                                                : found->pointer + ' ' + text(found->a) + ' ' + text(found->b)));
        });
    return lines;
}

Lines textDifferences(std::string_view a, std::string_view b, bool all = false, double tolerance = 1e-9)
{
    const TemporaryFile first(a);
    const TemporaryFile second(b);
    return differences(first.name(), second.name(), all, tolerance);
}

TEST(Diff, PairsMembersByNameAndElementsByIdOrPlace)
{
    EXPECT_THAT(textDifferences(R"({"a":1,"passing":1,"b":[{"id":1,"x":1},{"id":2,"x":2}],"c":[1,2]})",
                                R"({"c":[1,3,4],"b":[{"id":2,"x":5},{"id":1,"x":1},{"id":9}],"d":null})"),
                ElementsAre("|/a 1 nothing", "|/b/1/x 2 5", "|/b/2 nothing {...}", "|/c/1 2 3", "|/c/2 nothing 4",
                            "|/d nothing null"));
    EXPECT_THAT(textDifferences(R"([{"guid":"x","persistent_id":"1","n":1},{"guid":"y","persistent_id":"2","n":1}])",
                                R"([{"guid":"z","persistent_id":"2","n":1},{"guid":"x","persistent_id":"1","n":1}])"),
                ElementsAre(R"(|/1/guid "y" "z")"));
    EXPECT_THAT(textDifferences(R"([{"guid":"x"}])", R"([{"guid":"y"}])"), ElementsAre(R"(|/0/guid "x" "y")"));
    EXPECT_THAT(textDifferences(R"([{"id":1},{"id":1}])", R"([{"id":1},{"id":2}])"), ElementsAre("|/1/id 1 2"));
    EXPECT_THAT(textDifferences("[1]", "{}"), ElementsAre("| [...] {}"));
}

TEST(Diff, PlacesOfWhatOnlyBHasAreInB)
{
    EXPECT_THAT(textDifferences(R"([{"id":1},{"id":2,"x":[]}])", R"([{"id":2,"x":[1]},{"id":1}])"),
                ElementsAre("|/0/x/0 nothing 1"));
}

TEST(Diff, ComparesWhatStandsAloneAndBytesBehindAForm)
{
    EXPECT_THAT(textDifferences(R"({"exchange_object_name":"exc_progress","exchange_object_data":{"x":1}})",
                                R"({"exchange_object_name":"exc_progress","exchange_object_data":{"x":2}})"),
                ElementsAre("|/x 1 2"));
    const std::string form("\4\0\0\0\0\0\0\0\0\0\0\0", 12); // an empty array
    EXPECT_THAT(textDifferences(form, form + "rest"), ElementsAre("|bytes behind the binary form: 0 -> 4"));
}

TEST(Diff, ToleranceIsForDoublesOnly)
{
    EXPECT_THAT(
        textDifferences("[1.0, 1e12, 10000000000001, 1]", "[1.0000000001, 1000000000000.5, 10000000000002, 1.0]"),
        ElementsAre("|/2 10000000000001 10000000000002"));
    EXPECT_THAT(textDifferences("[1.0, 0.0]", "[1.1, 0.05]", false, 0.06), ElementsAre("|/0 1.0 1.1"));
    EXPECT_THAT(textDifferences("[1.0]", "[1.0000000001]", false, 0), ElementsAre("|/0 1.0 1.0000000001"));
}

TEST(Diff, ShortensArraysUnlessAllIsWanted)
{
    EXPECT_THAT(textDifferences("[1,2,3,4,5,6,7]", "[0,0,0,0,0,0,0]"), testing::Contains("| more 2"));
    EXPECT_THAT(textDifferences("[1,2,3,4,5,6,7]", "[0,0,0,0,0,0,0]", true), testing::SizeIs(7));
}

TEST(Diff, DepthIsNoDanger)
{
    const std::string open(1'000'000, '[');
    const std::string close(1'000'000, ']');
    EXPECT_THAT(textDifferences(open + close, open + close), IsEmpty());
    EXPECT_THAT(textDifferences(open + close, open + '1' + close), testing::SizeIs(1));
}

class Captures : public testing::Test
{
protected:
    static mp::wstring envelope(const std::string& name, const std::string& data)
    {
        return test::wide(R"({"exchange_object_name":")" + name + R"(","binary":true,"exchange_object_data":)" + data +
                          '}');
    }

    static void sendBlock(capture::CaptureWriter& writer, const std::string& buffer, const std::string& form,
                          bool packed)
    {
        std::vector<char> bytes;
        vrx::JsonBinaryIO::write(bytes, test::parsed(form));
        if (packed)
        {
            vrx::Compressor::compress(bytes, std::vector<char>(bytes).data(), bytes.size(), -1);
        }
        writer.buffer(test::wide(buffer), bytes.data(), bytes.size());
        writer.fromTranslator(envelope("exc_block_visualization", '"' + buffer + '"'));
    }

    static void sendBodies(capture::CaptureWriter& writer, const std::string& buffer, const std::string& bytes)
    {
        writer.buffer(test::wide(buffer), bytes.data(), bytes.size());
        writer.fromTranslator(test::wide(R"({"exchange_object_name":"exc_block_geometry","exchange_object_data":)"
                                         R"({"shared_acis_buffer_name":")" +
                                         buffer + R"(","block_id":1}})"));
    }

    static void sendProgress(capture::CaptureWriter& writer)
    {
        writer.fromTranslator(test::wide(R"({"exchange_object_name":"exc_progress","exchange_object_data":{}})"));
    }

    TemporaryFile m_a{""};
    TemporaryFile m_b{""};
};

TEST_F(Captures, ArePairedByClassAndBlock)
{
    {
        capture::CaptureWriter a(m_a.name(), true);
        capture::CaptureWriter b(m_b.name(), true);
        sendBlock(a, "a1", R"({"block_id":1,"x":1})", false);
        sendBlock(a, "a2", R"({"block_id":2,"x":1})", true);
        sendBlock(a, "a3", R"({"block_id":3})", true);
        sendBodies(a, "a4", "bodies");
        sendBodies(a, "a5", "bodies");
        sendBlock(b, "b2", R"({"block_id":2,"x":2})", false);
        sendProgress(b);
        sendBlock(b, "b1", R"({"block_id":1,"x":1})", true);
        sendBodies(b, "b4", "bodies");
        sendBodies(b, "b5", "BODIES");
        sendBlock(b, "b6", R"({"block_id":4})", true);
    }
    EXPECT_THAT(differences(m_a.name(), m_b.name()),
                ElementsAre("#2 exc_block_visualization of block 2|/x 1 2",
                            "#5 exc_block_geometry of block 1|bytes of the buffer: 6 -> 6, not the same",
                            "#6 exc_block_visualization of block 4|only in B",
                            "#3 exc_block_visualization of block 3|only in A"));
    EXPECT_THAT(differences(m_a.name(), m_b.name(), true), testing::Contains("#2 exc_progress|only in B"));
}

TEST_F(Captures, ArePairedWithTheirEqualsFirst)
{
    {
        capture::CaptureWriter a(m_a.name(), true);
        capture::CaptureWriter b(m_b.name(), true);
        b.fromHost(WIDE("{\"command\":\"inserted\"}"));
        for (const char* const command : {"first", "second", "third"})
        {
            const bool isChanged = command == std::string_view("second");
            a.fromHost(test::wide(std::string(R"({"command":")") + command + "\"}"));
            b.fromHost(test::wide(std::string(R"({"command":")") + (isChanged ? "inserted" : command) + "\"}"));
        }
    }
    EXPECT_THAT(
        differences(m_a.name(), m_b.name()),
        ElementsAre(R"(#2 command from the host|/command "second" "inserted")", "#3 command from the host|only in B"));
}

TEST_F(Captures, MissingBufferIsADifference)
{
    {
        capture::CaptureWriter a(m_a.name(), true);
        capture::CaptureWriter b(m_b.name(), true);
        sendBlock(a, "n", "[1]", false);
        b.fromTranslator(envelope("exc_block_visualization", "\"n\""));
    }
    EXPECT_THAT(differences(m_a.name(), m_b.name()),
                ElementsAre("#1 exc_block_visualization|buffer: there -> missing"));
}

} // namespace
