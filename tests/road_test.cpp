#include "tests/support/child_process.h"
#include "tests/support/corpus.h"
#include "tests/support/envelope.h"
#include "tests/support/helpers.h"
#include "tests/support/json_text.h"
#include "tests/support/shared_memory.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace vrx;

namespace
{

const char* const kVise =
    R"({"product_name":"vise","product_configuration_name":"","units":"unknown","world_orientation":"unknown"})";

struct Ended
{
    int code;
    std::string output;
};

// Runs the other process from its start to its end.
Ended peer(std::vector<std::string> arguments, const std::string& input = {})
{
    arguments.insert(arguments.begin(), VRX_API_TEST_PEER);
    test::ChildProcess process(arguments);
    process.write(input);
    process.closeInput();
    std::string output = process.readAll();
    return {process.wait(), std::move(output)};
}

// Starts a process that stays until it is killed: what it had written by then.
std::string outputOfKilled(const std::string& verb, const std::string& argument)
{
    test::ChildProcess process({VRX_API_TEST_PEER, verb, argument, "stay"});
    std::string output = process.readUpTo('\xFF');
    process.kill();
    EXPECT_EQ(process.wait(), -1);
    return output;
}

TEST(Road, AStructureCrossesBetweenTwoOtherProcessesOnce)
{
    const Ended writer = peer({"write-structure", "vise"});
    ASSERT_EQ(writer.code, 0);
    const Ended reader = peer({"read-envelope"}, writer.output);
    EXPECT_EQ(reader.code, 0);
    EXPECT_EQ(reader.output, kVise);

    const Ended late = peer({"read-envelope"}, writer.output);
    EXPECT_EQ(late.code, 3);
    EXPECT_EQ(late.output, "Failed to parse all bytes of type");
}

TEST(Road, AStructureIsLoadedLater)
{
    const Ended writer = peer({"write-structure", "vise"});
    const Ended reader = peer({"read-delayed"}, writer.output);
    EXPECT_EQ(reader.code, 0);
    EXPECT_EQ(reader.output, kVise);
    EXPECT_EQ(peer({"read-delayed"}, writer.output).code, 3);
}

TEST(Road, WhatAKilledWriterHadToldOfIsThere)
{
    EXPECT_EQ(test::written(*test::opened(outputOfKilled("write-structure", "vise"))), kVise);
}

TEST(Road, AWriterKilledBeforeItWroteLeavesNothingToRead)
{
    const mp::wstring name = IExchangeObject::generateUUID();
    outputOfKilled("open-buffer", mp::toNarrow(name));
    ExcProductStructure structure;
    structure.setSource(name);
    EXPECT_EQ(test::thrownBy<std::length_error>([&] { structure.load(); }), "Failed to parse all bytes of type");
    EXPECT_FALSE(structure.isLoaded());
}

TEST(Road, ABufferIsFoundByItsNameFromBothSides)
{
    const mp::wstring name = IExchangeObject::generateUUID();
    ASSERT_EQ(peer({"leave-buffer", mp::toNarrow(name)}, "left").code, 0);
    EXPECT_EQ(test::takeBuffer(name), "left");
    EXPECT_EQ(peer({"take-buffer", mp::toNarrow(name)}).output, "");

    const std::string content = test::bytes("00 FF 0D0A 0A 1A") + "sent";
    EXPECT_EQ(peer({"take-buffer", mp::toNarrow(test::leaveBuffer(content))}).output, content);
}

TEST(Road, EveryTextComesBackAsItWent)
{
    for (const mp::wstring& text : test::corpus())
    {
        const mp::wstring cut = text.substr(0, text.find(mp::wchar()));
        const auto message = std::make_shared<ExcMessage>(text);
        const auto structure = std::make_shared<ExcProductStructure>();
        structure->setProductName(text);

        const auto messageBack = test::opened(peer({"echo-envelope"}, test::envelopeOf(message)).output);
        const auto structureBack = test::opened(peer({"echo-envelope"}, test::envelopeOf(structure)).output);
        EXPECT_TRUE(std::dynamic_pointer_cast<ExcMessage>(messageBack)->get() == cut);
        EXPECT_TRUE(std::dynamic_pointer_cast<ExcProductStructure>(structureBack)->productName() == cut);
    }
}

TEST(Road, AnEnvelopeThatIsCutIsRefused)
{
    const std::string envelope = test::envelopeOf(std::make_shared<ExcProgress>());
    const Ended reader = peer({"read-envelope"}, envelope.substr(0, envelope.size() / 2));
    EXPECT_EQ(reader.code, 3);
    EXPECT_EQ(reader.output, "Invalid json document");
}

} // namespace
