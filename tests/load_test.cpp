#include "tests/support/envelope.h"
#include "tests/support/helpers.h"
#include "tests/support/log_capture.h"
#include "tests/support/shared_memory.h"
#include "tests/support/structures.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <gtest/gtest.h>

#include <utility>

using namespace vrx;
using test::envelopeOf;
using test::nameOf;
using test::opened;
using test::structureEnvelope;
using test::structureNamed;

namespace
{

// {"units": "inch"} in the binary form
std::string inches()
{
    return test::bytes("03000000 2A00000000000000"
                       "05000000 0500000000000000 75006E00690074007300"
                       "05000000 0400000000000000 69006E0063006800");
}

TEST(Load, IsTracedFromTheEnvelopeOn)
{
    const auto namesOf = [](const test::LogCapture& log) {
        std::string names;
        for (const std::string& line : log.lines("TRACE"))
        {
            names += line.substr(line.find("): ") + 3) + ' ';
        }
        return names;
    };
    const test::LogCapture writing;
    const std::string envelope = envelopeOf(std::make_shared<ExcProductStructure>());
    EXPECT_EQ(namesOf(writing), "writeObject writeObject compress ");
    const test::LogCapture reading;
    test::opened(envelope);
    EXPECT_EQ(namesOf(reading), "readObject load decompress readObject ");
}

TEST(Load, IsOnceAndLater)
{
    const std::string envelope = envelopeOf(structureNamed(WIDE("vise")));
    const auto object = opened(envelope, true);
    EXPECT_FALSE(object->isLoaded());
    EXPECT_EQ(nameOf(object), WIDE(""));
    object->load();
    EXPECT_TRUE(object->isLoaded());
    EXPECT_EQ(nameOf(object), WIDE("vise"));
    object->load();
    EXPECT_EQ(test::thrownBy<std::length_error>([&] { opened(envelope); }), "Failed to parse all bytes of type");
}

TEST(Load, WithoutASourceDoesNothing)
{
    ExcProductStructure structure;
    structure.load();
    EXPECT_FALSE(structure.isLoaded());
}

TEST(Load, DecidesOnTheBytesWhetherTheyAreCompressed)
{
    const std::string plain = inches();
    std::string packed;
    Compressor::compress(packed, plain.data(), plain.size(), 9);
    for (const std::string& content : {plain, packed})
    {
        const auto object = opened(structureEnvelope(test::leaveBuffer(content)));
        EXPECT_EQ(std::dynamic_pointer_cast<ExcProductStructure>(object)->units(), ELengthUnitType::Inch);
    }
}

TEST(Load, ThatFailsRemovesTheBufferAndLeavesTheObjectUnloaded)
{
    const std::pair<const char*, const char*> contents[] = {
        {"0B000000", "Unknown value type"},
        {"0300", "Failed to parse all bytes of type"},
        {"1F8B0800", "Failed to parse all bytes of type"},
        {"1F8B0900 000000000003", "unknown compression method"},
    };
    for (const auto& [hex, text] : contents)
    {
        const wstring source = test::leaveBuffer(test::bytes(hex));
        const auto object = opened(structureEnvelope(source), true);
        EXPECT_EQ(test::thrownBy<std::exception>([&] { object->load(); }), text) << hex;
        EXPECT_FALSE(object->isLoaded());
        EXPECT_EQ(test::thrownBy<std::exception>([&] { object->load(); }), "Failed to parse all bytes of type");
        EXPECT_EQ(test::takeBuffer(source), "");
    }
}

// The object of an envelope that is read by rules.
std::shared_ptr<IExchangeObject> openedWithin(const ReadRules& rules, const wstring& source, bool delayed)
{
    ExchangeObjectWrapper wrapper;
    wrapper.setDelayedLoading(delayed);
    wrapper.setReadRules(rules);
    mp::wistringstream stream(test::unitsOf(structureEnvelope(source)));
    wrapper.readObject(stream);
    return wrapper.get();
}

TEST(Load, TakesNoMoreThanTheLimit)
{
    const std::string plain = inches();
    std::string packed;
    Compressor::compress(packed, plain.data(), plain.size(), -1);
    const std::pair<std::string, std::string> contents[] = {
        {plain, "Content of 54 bytes is above the limit of 53 bytes"},
        {packed, "Decompressed data is above the limit of 53 bytes"},
        // Larger than a stream of so little can be: it is not even copied.
        {packed + std::string(100000, '\0'),
         "Content of " + std::to_string(packed.size() + 100000) + " bytes is above the limit of 53 bytes"}};
    ASSERT_EQ(plain.size(), 54U);
    for (const auto& [content, text] : contents)
    {
        const wstring refused = test::leaveBuffer(content);
        EXPECT_EQ(
            test::thrownBy<std::length_error>([&] { openedWithin(ReadRules::upToPlainBytes(53), refused, false); }),
            text);
        EXPECT_EQ(test::takeBuffer(refused), "");

        const wstring refusedLater = test::leaveBuffer(content);
        const auto object = openedWithin(ReadRules::upToPlainBytes(53), refusedLater, true);
        EXPECT_EQ(test::thrownBy<std::length_error>([&] { object->load(); }), text);
        EXPECT_FALSE(object->isLoaded());
        EXPECT_EQ(test::takeBuffer(refusedLater), "");
    }
    for (const std::string& content : {plain, packed})
    {
        EXPECT_TRUE(openedWithin(ReadRules::upToPlainBytes(54), test::leaveBuffer(content), false)->isLoaded());
    }
}

TEST(Load, OfAWrongKindIsLoadedAllTheSame)
{
    const test::LogCapture log;
    const auto object = opened(structureEnvelope(test::leaveBuffer(test::bytes("00000000"))));
    EXPECT_TRUE(object->isLoaded());
    EXPECT_EQ(log.lines("ERROR"),
              std::vector<std::string>{"ExcProductStructure object should have a JSON object type."});
}

TEST(Load, OfANameThatTheSystemRefusesThrows)
{
    EXPECT_THROW(opened(structureEnvelope(WIDE("no/such/folder/name"))), mp::SharedMemoryException);
}

} // namespace
