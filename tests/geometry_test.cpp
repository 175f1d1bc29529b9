#include "kernel_standin/kernel_trace.h"
#include "mp/narrow.h"
#include "tests/support/bodies.h"
#include "tests/support/helpers.h"
#include "tests/support/model_row.h"
#include "tests/support/shared_memory.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/exchange_object_wrapper.h"
#include "vrx_api/geometry/shared_acis_buffer.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace vrx;
using test::Bodies;
using test::row;
using testing::ElementsAre;

namespace
{

using Ids = std::vector<std::uint64_t>;
using Lines = std::vector<std::string>;

const char* const kNoBlockId = "[ERROR] ExcBlockGeometry: Failed to read block Id from JSON object.";
const char* const kNoName = "[ERROR] ExcBlockGeometry: Failed to read shared memory buffer name.";
const char* const kNoBuffer = "[ERROR] ExcBlockGeometry: ACIS buffer was not initialized in shared memory.";
const char* const kDefault = R"({"block_id":0,"shared_acis_buffer_name":null,"acis_body_ids":[]})";

class GeometryRows : public test::ModelRows
{
};

const test::ModelRow kRows[] = {
    row<ExcBlockGeometry>("Default", kDefault, kDefault, {kNoName, kNoBuffer}),
    row<ExcBlockGeometry>("OtherKinds", R"({"block_id":-1,"shared_acis_buffer_name":7,"acis_body_ids":{"a":1}})",
                          kDefault, {kNoBlockId, kNoName, kNoBuffer}),
    row<ExcBlockGeometry>("BodyIdsThatAreNone",
                          R"({"block_id":1,"shared_acis_buffer_name":"","acis_body_ids":["4",5,-6,7.0,null]})",
                          R"({"block_id":1,"shared_acis_buffer_name":null,"acis_body_ids":[5]})", {kNoBuffer}),
};

TEST_P(GeometryRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Geometry, GeometryRows, testing::ValuesIn(kRows), GeometryRows::nameOf);

TEST(BlockGeometry, ReplacesBodyIdsOnlyByAnArray)
{
    ExcBlockGeometry geometry;
    test::readText(geometry, R"({"block_id":1,"shared_acis_buffer_name":"","acis_body_ids":[1,2]})");
    test::readText(geometry, R"({"block_id":1,"shared_acis_buffer_name":""})");
    EXPECT_NE(test::written(geometry).find("[1,2]"), std::string::npos);
    test::readText(geometry, R"({"block_id":1,"shared_acis_buffer_name":"","acis_body_ids":[3]})");
    EXPECT_NE(test::written(geometry).find("[3]"), std::string::npos);
}

/// A producer's object with two bricks, and its JSON.
class SentBodies : public testing::Test
{
protected:
    SentBodies()
    {
        m_bodies.addBrick("first");
        m_bodies.addBrick("second");
        m_sent.setBlockId(7);
    }

    void send(bool compress)
    {
        ASSERT_TRUE(m_sent.setGeometry(m_bodies.list(), compress));
        m_text = test::written(m_sent);
        m_name = test::parsed(m_text)[WIDE("shared_acis_buffer_name")].GetString();
    }

    ExcBlockGeometry received() const
    {
        auto geometry = test::readFrom<ExcBlockGeometry>(m_text);
        geometry.load();
        return geometry;
    }

    void expectBodies(const ExcBlockGeometry& geometry)
    {
        Bodies bodies;
        Ids ids = {1};
        EXPECT_TRUE(geometry.getGeometry(bodies.list(), ids));
        EXPECT_EQ(bodies.describe(), "first 6 12 8\nsecond 6 12 8\n");
        EXPECT_THAT(ids, ElementsAre(1, ExcBlockGeometry::getEntityId(m_bodies.list()[0]),
                                     ExcBlockGeometry::getEntityId(m_bodies.list()[1])));
    }

    bool isInSystem() const { return !test::takeBuffer(m_name).empty(); }

    Bodies m_bodies;
    ExcBlockGeometry m_sent;
    std::string m_text;
    wstring m_name;
};

TEST_F(SentBodies, AreRestoredAsOftenAsWanted)
{
    for (const bool compress : {false, true})
    {
        send(compress);
        const ExcBlockGeometry geometry = received();
        EXPECT_TRUE(geometry.isLoaded());
        EXPECT_EQ(geometry.blockId(), 7U);
        expectBodies(geometry);
        expectBodies(geometry);
        // The producer's own object reads them too.
        expectBodies(m_sent);
    }
}

TEST_F(SentBodies, AreCompressedOnlyWhenToldTo)
{
    send(true);
    const std::string compressed = test::takeBuffer(m_name);
    ASSERT_TRUE(m_sent.setGeometry(m_bodies.list(), false));
    const wstring name = test::parsed(test::written(m_sent))[WIDE("shared_acis_buffer_name")].GetString();
    EXPECT_NE(name, m_name);
    const std::string plain = test::takeBuffer(name);
    EXPECT_EQ(plain, test::saved(m_bodies.list()));
    EXPECT_TRUE(Compressor::isCompressed(compressed.data(), compressed.size()));
    std::string unpacked;
    Compressor::decompress(unpacked, compressed.data(), compressed.size());
    EXPECT_EQ(unpacked, plain);
}

TEST_F(SentBodies, ShareOneBufferUntilTheLastCopyGoes)
{
    send(false);
    {
        const auto copy = std::make_unique<ExcBlockGeometry>(received());
        {
            const ExcBlockGeometry other = *copy;
            expectBodies(other);
        }
        expectBodies(*copy);
    }
    EXPECT_FALSE(isInSystem());
}

TEST_F(SentBodies, StayForAnotherReaderThatOneLeavesThemTo)
{
    send(false);
    {
        ExcBlockGeometry first = received();
        first.own(false);
        first.load();
        expectBodies(first);
    }
    expectBodies(received());
    EXPECT_FALSE(isInSystem());
}

TEST_F(SentBodies, GoWithTheProducerThatOwnsThem)
{
    for (const bool before : {true, false})
    {
        m_sent.own(before);
        send(false);
        m_sent.own(true);
        m_sent = ExcBlockGeometry();
        EXPECT_FALSE(isInSystem());
    }
}

TEST_F(SentBodies, CrossAsATextEnvelope)
{
    send(true);
    ExchangeObjectWrapper envelope;
    envelope.set(std::make_shared<ExcBlockGeometry>(m_sent));
    mp::wstringstream stream;
    envelope.writeObject(stream);
    EXPECT_EQ(stream.str().find(WIDE("\"binary\"")), wstring::npos);

    ExchangeObjectWrapper arrived;
    arrived.readObject(stream);
    const auto geometry = std::dynamic_pointer_cast<ExcBlockGeometry>(arrived.get());
    ASSERT_NE(geometry, nullptr);
    EXPECT_FALSE(geometry->isLoaded());
    geometry->load();
    expectBodies(*geometry);
}

TEST_F(SentBodies, OfAnEmptyListAreStillSaved)
{
    ASSERT_TRUE(m_sent.setGeometry(ENTITY_LIST(), false));
    m_text = test::written(m_sent);
    Bodies bodies;
    Ids ids;
    EXPECT_TRUE(received().getGeometry(bodies.list(), ids));
    EXPECT_EQ(bodies.list().count(), 0);
    EXPECT_TRUE(ids.empty());
}

TEST_F(SentBodies, ThatWereRemovedBeforeTheLoadAreAnError)
{
    send(false);
    ASSERT_TRUE(isInSystem());
    const ExcBlockGeometry geometry = received();
    EXPECT_TRUE(geometry.isLoaded());
    const test::LogCapture log;
    Bodies bodies;
    Ids ids;
    EXPECT_FALSE(geometry.getGeometry(bodies.list(), ids));
    EXPECT_TRUE(ids.empty());
    EXPECT_THAT(log.complaints(),
                ElementsAre("[ERROR] Failed to get geometry from shared memory buffer: The saved data end too early"));
}

TEST_F(SentBodies, ThatWereRemovedAfterTheLoadAreStillHeld)
{
    send(false);
    const ExcBlockGeometry geometry = received();
    ASSERT_TRUE(isInSystem());
    expectBodies(geometry);
    EXPECT_FALSE(isInSystem());
}

TEST_F(SentBodies, AreStillThoseOfTheOpenBufferWhenReadAgain)
{
    send(false);
    ExcBlockGeometry geometry = received();
    test::readText(geometry, m_text);
    geometry.load();
    EXPECT_FALSE(geometry.isLoaded());
    expectBodies(geometry);
}

#ifdef __linux__
TEST_F(SentBodies, ThatTheSystemCanNotMapThrow)
{
    send(false);
    const ExcBlockGeometry geometry = received();
    std::filesystem::resize_file("/dev/shm/" + mp::toNarrow(m_name), std::uintmax_t{1} << 48U);
    Bodies bodies;
    Ids ids;
    EXPECT_THROW(geometry.getGeometry(bodies.list(), ids), mp::SharedMemoryException);
    EXPECT_TRUE(ids.empty());
}
#endif

TEST_F(SentBodies, ThatWereDamagedAreAnError)
{
    send(true);
    std::string bytes = test::takeBuffer(m_name);
    const auto readDamaged = [&] {
        mp::SharedBuffer<char> buffer;
        buffer.open(m_name, false);
        buffer.write(bytes.data(), bytes.size());
        Bodies bodies;
        Ids ids;
        const bool done = received().getGeometry(bodies.list(), ids);
        return done || bodies.list().count() != 0 || !ids.empty();
    };
    const std::string whole = bytes;
    // Behind the last byte of the data stand only the mark of their end and gzip's trailer, less than 16 bytes.
    for (std::size_t size = 1; size < whole.size() - 16; ++size)
    {
        bytes = whole.substr(0, size);
        EXPECT_FALSE(readDamaged()) << size;
    }
    bytes = whole;
    bytes[whole.size() / 2] = static_cast<char>(~bytes[whole.size() / 2]);
    EXPECT_THROW(readDamaged(), std::runtime_error);
}

TEST_F(SentBodies, AboveTheLimitThrow)
{
    const std::uint64_t size = test::saved(m_bodies.list()).size();
    for (const bool compress : {false, true})
    {
        send(compress);
        {
            ExcBlockGeometry geometry = received();
            geometry.setReadRules(ReadRules::upToPlainBytes(size - 1));
            Bodies bodies;
            Ids ids;
            EXPECT_THROW(geometry.getGeometry(bodies.list(), ids), std::length_error);
            EXPECT_EQ(bodies.list().count() + static_cast<int>(ids.size()), 0);
            geometry.setReadRules(ReadRules::upToPlainBytes(size));
            expectBodies(geometry);
        }
        EXPECT_FALSE(isInSystem());
    }
}

TEST(BlockGeometry, WithoutABufferIsAnError)
{
    const test::LogCapture log;
    ExcBlockGeometry geometry;
    ENTITY_LIST entities;
    Ids ids;
    EXPECT_FALSE(geometry.getGeometry(entities, ids));
    geometry.load();
    EXPECT_FALSE(geometry.isLoaded());
    EXPECT_THAT(log.complaints(),
                ElementsAre("[ERROR] Failed to get geometry from shared memory buffer: Invalid buffer object.",
                            "[ERROR] Failed to load ACIS buffer: Shared variable name mustn't be empty"));
}

const char* const kBegin[] = {"set_global_error_info", "problems_list_prop::problems_list_prop",
                              "logging_opt_on",        "api_bb_begin(1)",
                              "exception_save::begin", "get_error_mark",
                              "ACISExceptionCheck"};

Lines sequence(std::initializer_list<const char*> rest)
{
    Lines lines(std::begin(kBegin), std::end(kBegin));
    lines.insert(lines.end(), rest.begin(), rest.end());
    return lines;
}

const char* const kProcess = "problems_list_prop::process_result(1, 0)";
const char* const kSaveEnd = "exception_save::~exception_save";

TEST(AcisBlock, TakesTheStepsInTheirOrder)
{
    Bodies bodies;
    bodies.addBrick("");
    ExcBlockGeometry geometry;
    geometry.own(true);
    {
        const KernelTrace trace;
        ASSERT_TRUE(geometry.setGeometry(bodies.list(), false));
        EXPECT_EQ(trace.calls(),
                  sequence({"api_save_entity_list_file", "check_outcome", "update_from_bb", "api_bb_end(1, 0)",
                            "set_logging(1)", kSaveEnd, "acis_interrupted", kProcess}));
    }
    set_logging(0);
    {
        const KernelTrace trace;
        Bodies restored;
        Ids ids;
        ASSERT_TRUE(geometry.getGeometry(restored.list(), ids));
        EXPECT_EQ(trace.calls(),
                  sequence({"api_restore_entity_list_file", "check_outcome", "update_from_bb", "api_bb_end(1, 1)",
                            "set_logging(0)", kSaveEnd, "acis_interrupted", kProcess}));
    }
    set_logging(1);
}

struct Failure
{
    const char* operation;
    bool raised;
    const char* text;
    std::vector<const char*> calls;
};

TEST(AcisBlock, TurnsEachErrorIntoTheOutcome)
{
    const std::vector<const char*> end = {"base_to_err_info", "api_bb_end(1, 0)",        "set_logging(1)", kSaveEnd,
                                          "acis_interrupted", "error_info_base::remove", kProcess};
    const std::vector<const char*> endWithoutInfo = {"base_to_err_info", "api_bb_end(1, 0)", "set_logging(1)",
                                                     kSaveEnd,           "acis_interrupted", kProcess};
    const Failure failures[] = {
        {"api_save_entity_list_file", false, "not saved", {"api_save_entity_list_file", "check_outcome"}},
        {"api_save_entity_list_file", true, "thrown", {"api_save_entity_list_file"}},
        {"api_save_entity_list_file", false, nullptr, {"api_save_entity_list_file", "check_outcome"}},
        {"check_outcome", true, "checked", {"api_save_entity_list_file", "check_outcome"}},
        {"update_from_bb", true, "not updated", {"api_save_entity_list_file", "check_outcome", "update_from_bb"}},
    };
    Bodies bodies;
    const std::uint64_t id = ExcBlockGeometry::getEntityId(bodies.addBrick(""));
    for (const Failure& failure : failures)
    {
        ExcBlockGeometry geometry;
        geometry.own(true);
        const test::LogCapture log;
        KernelTrace trace;
        failure.raised ? trace.raise(failure.operation, failure.text) : trace.fail(failure.operation, failure.text);
        EXPECT_FALSE(geometry.setGeometry(bodies.list(), false));

        Lines expected(std::begin(kBegin), std::end(kBegin));
        expected.insert(expected.end(), failure.calls.begin(), failure.calls.end());
        const auto& rest = failure.text == nullptr ? endWithoutInfo : end;
        expected.insert(expected.end(), rest.begin(), rest.end());
        EXPECT_EQ(trace.calls(), expected);
        const std::string text = failure.text == nullptr ? "" : failure.text;
        EXPECT_THAT(log.complaints(), ElementsAre("[ERROR] Failed to write geometry into shared ACIS buffer: " + text));
        EXPECT_EQ(KernelTrace::openTransactions(), 0);
        // The ids that were gathered stay.
        EXPECT_NE(test::written(geometry).find("[" + std::to_string(id) + "]"), std::string::npos);
    }
}

TEST(AcisBlock, LogsWhatRestoringFailedWith)
{
    ExcBlockGeometry geometry;
    geometry.own(true);
    ASSERT_TRUE(geometry.setGeometry(ENTITY_LIST(), false));
    const test::LogCapture log;
    KernelTrace trace;
    trace.fail("api_restore_entity_list_file", "not restored");
    ENTITY_LIST entities;
    Ids ids;
    EXPECT_FALSE(geometry.getGeometry(entities, ids));
    EXPECT_THAT(log.complaints(),
                ElementsAre("[ERROR] Failed to get geometry from shared memory buffer: not restored"));
}

TEST(AcisBlock, LetsAnInterruptPassOut)
{
    for (const bool withError : {false, true})
    {
        ExcBlockGeometry geometry;
        geometry.own(true);
        KernelTrace trace;
        trace.interrupt("api_save_entity_list_file");
        if (withError)
        {
            trace.raise("check_outcome", "interrupted");
        }
        EXPECT_THROW(geometry.setGeometry(ENTITY_LIST(), false), acis_exception);
        const Lines calls = trace.calls();
        const std::string end = calls.back();
        if (withError)
        {
            EXPECT_EQ(calls[calls.size() - 2], "sys_error(1000)");
            EXPECT_EQ(end, "error_info_base::remove");
        }
        else
        {
            EXPECT_EQ(end, "sys_error(0)");
        }
        EXPECT_EQ(KernelTrace::openTransactions(), 0);
        EXPECT_EQ(acis_interrupted(), 0);
    }
}

/// The buffer as the kernel sees it.
class OpenBuffer : public ExcSharedAcisBuffer
{
public:
    using ExcSharedAcisBuffer::ExcSharedAcisBuffer;
    using ExcSharedAcisBuffer::write;

    std::string readSome(std::size_t length)
    {
        std::string bytes(length, '\0');
        bytes.resize(read(bytes.data(), length));
        return bytes;
    }
};

TEST(SharedAcisBuffer, KeepsOnePositionForBothDirections)
{
    OpenBuffer buffer(IExchangeObject::generateUUID(), true);
    EXPECT_EQ(buffer.set_mark(), 0);
    buffer.write("0123456789", 10);
    EXPECT_EQ(buffer.set_mark(), 10);
    EXPECT_EQ(buffer.goto_mark(2), 2);
    buffer.write("ab", 2);
    EXPECT_EQ(buffer.set_mark(), 4);
    EXPECT_EQ(buffer.goto_mark(0), 0);
    EXPECT_EQ(buffer.readSome(3), "01a");
    EXPECT_EQ(buffer.set_mark(), 3);
    EXPECT_EQ(buffer.readSome(100), "b456789");
    EXPECT_EQ(buffer.set_mark(), 10);
    EXPECT_EQ(buffer.readSome(1), "");
    EXPECT_EQ(buffer.set_mark(), 10);
    EXPECT_EQ(buffer.goto_mark(9), 9);
    EXPECT_EQ(buffer.readSome(2), "9");
}

TEST(SharedAcisBuffer, HoldsNothingOfAnEarlierLoad)
{
    const wstring name = IExchangeObject::generateUUID();
    OpenBuffer buffer(name, true);
    mp::SharedBuffer<char> other;
    other.open(name, false);
    other.write("a longer content", 16);
    buffer.load();
    EXPECT_EQ(buffer.readSome(100), "a longer content");
    other.write("short", 5);
    buffer.load();
    EXPECT_EQ(buffer.set_mark(), 0);
    EXPECT_EQ(buffer.readSome(100), "short");
    buffer.flush(false);
    std::vector<char> bytes;
    other.read(bytes);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), "short");

    other.clear();
    buffer.load();
    EXPECT_EQ(buffer.readSome(100), "");
    buffer.flush(true);
    other.read(bytes);
    EXPECT_TRUE(bytes.empty());
}

} // namespace
