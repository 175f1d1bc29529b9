#include "bridge/bridge.h"
#include "mp/narrow.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

using namespace vrx::bridge;

namespace
{

vrx::Result answer(ChildProcess& translator, const mp::wstring& command)
{
    writeFrame(translator.input(), command);
    vrx::Result result;
    fromText(readFrame(translator.output()).value(), result);
    return result;
}

TEST(Translator, TellsWhatItReads)
{
    HostSession session({CAD_TRANSLATOR});
    const vrx::FerrantInfo info = session.info();
    EXPECT_EQ(info.name(), WIDE("cad_translator"));
    EXPECT_EQ(info.requestedInterface(), vrx::EFerrantInterface::UConnect);
    ASSERT_EQ(info.thirdpartyCores().size(), 1U);
    EXPECT_EQ(info.thirdpartyCores()[0]->name(), WIDE("Open CASCADE Technology"));
    ASSERT_EQ(info.importFormats().size(), 2U);
    EXPECT_TRUE(info.importFormats()[0]->is(WIDE("folder/Part.STP")));
    EXPECT_FALSE(info.importFormats()[0]->is(WIDE("part.stpx")));
    EXPECT_TRUE(info.importFormats()[1]->is(WIDE("folder/Part.IGES")));
    EXPECT_FALSE(info.importFormats()[1]->is(WIDE("part.step")));
    EXPECT_TRUE(info.exportFormats().empty());
}

TEST(Translator, AnswersAPing)
{
    HostSession session({CAD_TRANSLATOR});
    EXPECT_EQ(session.ping().code(), vrx::Result::ECode::Ok);
}

TEST(Translator, RefusesWhatItCannotDoAndGoesOn)
{
    ChildProcess translator({CAD_TRANSLATOR});
    for (const mp::wchar* command :
         {WIDE("nonsense"), WIDE("{}"), WIDE("{\"command\":\"shutdown\"}"),
          WIDE("{\"command\":\"export\",\"options\":{\"file\":\"a.step\"}}"), WIDE("{\"command\":\"import\"}"),
          WIDE("{\"ferrant_interface\":\"legacy\",\"command\":\"import\",\"options\":{\"file\":\"a.step\"}}"),
          WIDE("{\"command\":\"import\",\"options\":{\"file\":\"\"}}")})
    {
        vrx::Result result;
        writeFrame(translator.input(), command);
        mp::wstring text = readFrame(translator.output()).value();
        while (text.find(WIDE("exchange_object_name")) != mp::wstring::npos)
        {
            text = readFrame(translator.output()).value();
        }
        fromText(text, result);
        EXPECT_EQ(result.code(), vrx::Result::ECode::Error) << std::string(command, command + 20);
        EXPECT_FALSE(result.message().empty());
        EXPECT_TRUE(result.isFinished());
    }
    EXPECT_EQ(answer(translator, WIDE("{\"command\":\"ping\"}")).code(), vrx::Result::ECode::Ok);
}

TEST(Translator, EndsWhenItsInputIsClosed)
{
    ChildProcess translator({CAD_TRANSLATOR});
    EXPECT_EQ(answer(translator, WIDE("{\"command\":\"ping\"}")).code(), vrx::Result::ECode::Ok);
    EXPECT_EQ(translator.end(), "it exited with code 0");
}

class NameKeeper : public Listener
{
public:
    void onObject(const std::shared_ptr<vrx::IExchangeObject>& object) override
    {
        names.push_back(object->objectName());
        const auto structure = std::dynamic_pointer_cast<vrx::ExcProductStructure>(object);
        blocks += structure ? structure->blocks().size() : 0;
    }

    std::vector<mp::wstring> names;
    std::size_t blocks = 0;
};

TEST(Translator, HandsOnWhatItSendsBeforeItDies)
{
    const std::string program = testing::TempDir() + "dying_translator";
    std::ofstream(program) << "#!/bin/sh\nexec '" CAD_TRANSLATOR "_dying' exc_block_geometry\n";
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    const auto options = vrx::Command::newImportOptions();
    options->setFile(mp::toWide(PIN));
    NameKeeper keeper;
    EXPECT_THROW(HostSession({program}).importFile(options, keeper), TranslatorFailure);
    EXPECT_THAT(keeper.names,
                testing::ElementsAre(vrx::ExcProductStructure::objName(), vrx::ExcBlockGeometry::objName()));
    EXPECT_GT(keeper.blocks, 0U);
    std::filesystem::remove(program);
}

} // namespace
