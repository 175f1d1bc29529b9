#include "mp/narrow.h"
#include "tests/support/bodies.h"
#include "tests/support/child_process.h"
#include "tests/support/envelope.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace vrx;

namespace
{

const char* const kDescribed = "2\nfirst 6 12 8\nsecond 6 12 8\n";

struct Ended
{
    int code;
    std::string output;
};

// Runs the other process from its start to its end.
Ended peer(const std::string& verb, const std::string& text, const std::string& input = {})
{
    test::ChildProcess process({VRX_API_TEST_BODIES_PEER, verb, text});
    process.write(input);
    process.closeInput();
    std::string output = process.readAll();
    return {process.wait(), std::move(output)};
}

std::string readTwice(const std::string& envelope)
{
    return peer("read", "", envelope).output;
}

TEST(BodiesRoad, CrossBetweenTwoOtherProcessesOnce)
{
    const std::string envelope = peer("write", "first").output;
    EXPECT_EQ(readTwice(envelope), std::string(kDescribed) + kDescribed);
    EXPECT_EQ(readTwice(envelope), "failed 0\nfailed 0\n");
}

TEST(BodiesRoad, CrossFromAWriterThatWasKilled)
{
    test::ChildProcess writer({VRX_API_TEST_BODIES_PEER, "write-and-stay", "first"});
    const std::string envelope = writer.readUpTo('\xFF');
    writer.kill();
    EXPECT_EQ(writer.wait(), -1);
    EXPECT_EQ(readTwice(envelope), std::string(kDescribed) + kDescribed);
}

TEST(BodiesRoad, AreThereForAnotherReaderWhenOneWasKilled)
{
    const std::string envelope = peer("write", "first").output;
    {
        test::ChildProcess reader({VRX_API_TEST_BODIES_PEER, "read-and-stay"});
        reader.write(envelope);
        reader.closeInput();
        EXPECT_EQ(reader.readUpTo('\xFF'), kDescribed);
        reader.kill();
        EXPECT_EQ(reader.wait(), -1);
    }
    EXPECT_EQ(readTwice(envelope), std::string(kDescribed) + kDescribed);
}

TEST(BodiesRoad, KeepTheIdsOfTheirProducer)
{
    const auto sent = peer("write", "first").output;
    const auto geometry = std::dynamic_pointer_cast<ExcBlockGeometry>(test::opened(sent));
    ASSERT_NE(geometry, nullptr);
    geometry->load();
    test::Bodies bodies;
    std::vector<std::uint64_t> ids;
    ASSERT_TRUE(geometry->getGeometry(bodies.list(), ids));
    ASSERT_EQ(ids.size(), 2U);
    const std::string text = mp::toNarrow(test::unitsOf(sent));
    EXPECT_NE(text.find('[' + std::to_string(ids[0]) + ", " + std::to_string(ids[1]) + ']'), std::string::npos) << text;
}

#ifdef __linux__
TEST(BodiesRoad, AFullFileSystemIsAnError)
{
    const std::pair<const char*, const char*> resources[] = {
        {"space", "Failed to flush ACIS data into shared memory buffer: "},
        {"names", "Failed to initialize shared ACIS buffer: "},
    };
    for (const auto& [resource, text] : resources)
    {
        const Ended full = peer("write-without", resource);
        EXPECT_EQ(full.code, 0) << full.output;
        const std::string line = text;
        EXPECT_EQ(full.output.substr(0, line.size()), line);
        EXPECT_EQ(std::count(full.output.begin(), full.output.end(), '\n'), 1) << full.output;
        EXPECT_GT(full.output.size(), line.size() + 1);
    }
}
#endif

} // namespace
