#include "support.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <gmock/gmock.h>

namespace
{

TEST(Export, CarriesItsObjectsAndHearsOfThem)
{
    const test::Road road = test::road("exports", {});
    EXPECT_EQ(road.told, "peer\nmessage one\nmessage two\nresult 1\nping 1\n");
    EXPECT_EQ(road.left, 0U);
}

TEST(Export, MayBeAnsweredBeforeItsEnd)
{
    const test::Road road = test::road("exports", {"stray"});
    EXPECT_EQ(road.told, "peer\nmessage one\nresult 3\nping 1\n");
    EXPECT_EQ(road.left, 0U);
}

TEST(Export, IsOverForOneWhoRefusesWhatIsLeftOfIt)
{
    const test::Road road = test::road("exports", {"limit"});
    EXPECT_EQ(road.told, "peer\nmessage one\nresult 3\nping 1\n");
    EXPECT_EQ(road.left, 0U);
}

TEST(Export, IsAnsweredByOneThatEndsAtOnce)
{
    const test::Road road = test::road("exports-slowly", {"answer", "exit"});
    EXPECT_EQ(road.told, "peer\nmessage one\nresult 3\nping failure 0 The translator died: it exited with code 5.\n");
    EXPECT_EQ(road.left, 0U);
}

TEST(Export, LeavesNothingWhenTheTranslatorDies)
{
    const test::Road road = test::road("exports", {"die"});
    EXPECT_THAT(road.told, testing::HasSubstr("failure 0 The translator d"));
    EXPECT_EQ(road.left, 0U);
}

// The translator of a host that has its own ways.
class Translator : public testing::Test
{
protected:
    void put(const mp::wstring& text) const { writeFrame(m_process.input(), text); }
    void putExport() const
    {
        vrx::Command command;
        command.setType(vrx::Command::EType::Export);
        command.setExportOptions(vrx::Command::newExportOptions());
        put(vrx::bridge::toText(command));
    }
    void putObject(const mp::wstring& object, const mp::wstring& buffer) const
    {
        put(WIDE(R"({"exchange_object_name":")") + object + WIDE(R"(","binary":true,"exchange_object_data":")") +
            buffer + WIDE("\"}"));
    }
    vrx::Result result() const
    {
        vrx::Result result;
        vrx::bridge::fromText(*vrx::bridge::readFrame(m_process.output()), result);
        return result;
    }
    vrx::bridge::ChildProcess& process() { return m_process; }

private:
    vrx::bridge::ChildProcess m_process{{VRX_BRIDGE_TEST_PEER, "translator"}};
};

TEST_F(Translator, AnswersWhatIsNoCommand)
{
    put(WIDE("{}"));
    const vrx::Result answer = result();
    EXPECT_EQ(answer.code(), vrx::Result::ECode::Error);
    EXPECT_EQ(answer.message(), WIDE("This is no command: Json document has no command type."));
    EXPECT_TRUE(answer.isFinished());
    put(WIDE(R"({"command":"ping"})"));
    EXPECT_EQ(result().code(), vrx::Result::ECode::Ok);
}

TEST_F(Translator, DropsAnObjectThatItDoesNotKnow)
{
    const mp::wstring name = vrx::IExchangeObject::generateUUID();
    mp::SharedBuffer<char> buffer;
    buffer.open(name, false);
    putExport();
    putObject(WIDE("exc_newer"), name);
    put(vrx::bridge::toText(vrx::Result()));
    EXPECT_EQ(result().code(), vrx::Result::ECode::Ok);
    EXPECT_FALSE(mp::SharedBuffer<char>::remove(name));
}

TEST_F(Translator, TakesTheNextCommandForTheEndOfAnExport)
{
    putExport();
    put(WIDE(R"({"command":"ping"})"));
    EXPECT_EQ(result().code(), vrx::Result::ECode::Ok);
    EXPECT_EQ(result().code(), vrx::Result::ECode::Ok);
}

TEST_F(Translator, FailsWhenBytesStandBehindAnObject)
{
    constexpr char kObjectAndMore[] = "\3\0\0\0\0\0\0\0\0\0\0\0";
    const mp::wstring name = vrx::IExchangeObject::generateUUID();
    mp::SharedBuffer<char> buffer;
    buffer.open(name, true);
    buffer.write(kObjectAndMore, sizeof(kObjectAndMore));
    putExport();
    putObject(vrx::ExcProductStructure::objName(), name);
    process().closeInput();
    EXPECT_THAT(test::readAll(process().output()), testing::IsEmpty());
}

TEST_F(Translator, FailsWhenAnObjectHasANameTwice)
{
    putExport();
    put(WIDE(R"({"exchange_object_name":"exc_product_structure","binary":false,"binary":false,)"
             R"("exchange_object_data":{}})"));
    process().closeInput();
    EXPECT_THAT(test::readAll(process().output()), testing::IsEmpty());
}

TEST_F(Translator, AnswersACommandAgainstTheRulesThatEndsAnExport)
{
    putExport();
    put(WIDE(R"({"command":"ping","command":"ping"})"));
    EXPECT_EQ(result().code(), vrx::Result::ECode::Ok);
    EXPECT_EQ(result().message(), WIDE("This is no command: An object has two members of the name command"));
}

TEST_F(Translator, FailsWhenTheHostEndsWithinAnExport)
{
    putExport();
    process().closeInput();
    EXPECT_THAT(test::readAll(process().output()), testing::IsEmpty());
    ASSERT_TRUE(process().wait(std::chrono::seconds(20)));
    EXPECT_EQ(process().exitCode(), 3);
}

} // namespace
