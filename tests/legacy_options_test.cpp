#include "tests/support/enum_row.h"
#include "tests/support/json_text.h"
#include "tests/support/log_capture.h"
#include "tests/support/message_text.h"
#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_format_options.h"

#include <gmock/gmock.h>

using namespace vrx;
using test::readText;
using test::refusal;
using test::written;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr const char* kNoDrawing = "Json document has no valid temporary dwg path.";

// Options of a factory as a class of their own, that tests can make.
template <auto Make>
class Made : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override { m_options->readObject(value); }
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override
    {
        m_options->writeObject(value, allocator);
    }

    auto* operator->() { return m_options.get(); }
    const auto* operator->() const { return m_options.get(); }
    auto& operator*() { return *m_options; }
    const auto& operator*() const { return *m_options; }

private:
    decltype(Make()) m_options = Make();
};

using Import = Made<Command::newLegacyImportOptions>;
using Export = Made<Command::newLegacyExportOptions>;

// The text of options that have a file and a drawing, and the given members behind them.
std::string optionsText(const std::string& members)
{
    return R"({"file":"f","temporary_dwg":"t")" + members + '}';
}

std::string memberText(const std::string& key, const std::string& json)
{
    return optionsText(",\"" + key + "\":" + json);
}

// A row of an enumeration of one of the two classes.
template <class Object, class Options, class E>
test::EnumRow modeRow(const char* title, const std::string& key, E (Options::*getter)() const,
                      void (Options::*setter)(E), std::vector<test::EnumEntry> entries, const char* ofUnlistedName)
{
    return test::enumRow<Object>(
        title, memberText(key, R"("?")"), [getter](const Object& object) { return ((*object).*getter)(); },
        [setter](Object& object, E mode) { ((*object).*setter)(mode); }, std::move(entries), ofUnlistedName);
}

std::vector<test::EnumEntry> insUnits()
{
    return {"unknown",     "inches",           "feet",    "miles",
            "millimeters", "centimeters",      "meters",  "kilometers",
            "microinches", {12, "nanometers"}, "microns", "decimeters"};
}

const test::EnumRow kEnums[] = {
    modeRow<Import>("EPmiMode", "pmi_mode", &LegacyImportOptions::pmiMode, &LegacyImportOptions::setPmiMode,
                    {"none", "graphical", "semantic"}, "none"),
    modeRow<Import>("EProductStructureMode", "product_structure_mode", &LegacyImportOptions::productStructureMode,
                    &LegacyImportOptions::setProductStructureMode, {"none", "as_blocks", "as_mechanical_components"},
                    "none"),
    modeRow<Import>("EColorsMode", "colors_mode", &LegacyImportOptions::colorsMode, &LegacyImportOptions::setColorsMode,
                    {"rgb", "matching_index", "nearest_index"}, "rgb"),
    modeRow<Import>("EHiddenPartsMode", "hidden_parts_mode", &LegacyImportOptions::hiddenPartsMode,
                    &LegacyImportOptions::setHiddenPartsMode, {"import_hide", "import_show", "do_not_import"},
                    "do_not_import")
        .unlistedNumberWrites("do_not_import"),
    modeRow<Import>("EInsUnits of an import", "ins_units_def_source", &LegacyImportOptions::insUnitsDefSource,
                    &LegacyImportOptions::setInsUnitsDefSource, insUnits(), "unknown"),
    modeRow<Export>("EInsUnits of an export", "ins_units_def_target", &LegacyExportOptions::insUnitsDefTarget,
                    &LegacyExportOptions::setInsUnitsDefTarget, insUnits(), "unknown"),
    modeRow<Export>("EExportProductStructureMode", "product_structure_mode", &LegacyExportOptions::productStructureMode,
                    &LegacyExportOptions::setProductStructureMode, {"none", "as_mechanical_components"}, "none"),
    modeRow<Export>("EExportHiddenPartsMode", "hidden_parts_mode", &LegacyExportOptions::hiddenPartsMode,
                    &LegacyExportOptions::setHiddenPartsMode, {"export_hide", "do_not_export"}, "do_not_export")
        .unlistedNumberWrites("do_not_export"),
};

class LegacyEnums : public test::EnumRows
{
};

TEST_P(LegacyEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Legacy, LegacyEnums, testing::ValuesIn(kEnums), LegacyEnums::nameOf);

// What is set is written under the key, and what is read under the key is what the options return.
template <class Object, class Options, class T, class Argument>
void expectUnder(const char* key, T (Options::*getter)() const, void (Options::*setter)(Argument), const char* json,
                 const std::decay_t<Argument>& value)
{
    Object set;
    set->setFile(WIDE("f"));
    set->setTemporaryDwg(WIDE("t"));
    ((*set).*setter)(value);
    const auto read = test::readFrom<Object>(memberText(key, json));
    EXPECT_EQ(((*read).*getter)(), value) << key;
    EXPECT_EQ(written(set), written(read)) << key;
}

} // namespace

TEST(LegacyImportOptions, HoldSwitchesUnderTheirKeys)
{
    using Options = LegacyImportOptions;
    expectUnder<Import>("use_interop_mp", &Options::useIopMP, &Options::setUseIopMP, "true", true);
    expectUnder<Import>("ins_units_scaling", &Options::insUnitsScaling, &Options::setInsUnitsScaling, "true", true);
    expectUnder<Import>("import_acis_with_draftwell", &Options::importAcisWithDraftwell,
                        &Options::setImportAcisWithDraftwell, "true", true);
    expectUnder<Import>("step_rotate_yz", &Options::stepRotateYZ, &Options::setStepRotateYZ, "true", true);
    expectUnder<Import>("solidworks_rotate_yz", &Options::solidWorksRotateYZ, &Options::setSolidWorksRotateYZ, "true",
                        true);
    expectUnder<Import>("debug_log", &Options::printDebugLog, &Options::setPrintDebugLog, "true", true);
}

TEST(LegacyImportOptions, HaveDefaultsThatWork)
{
    Import options;
    options->setFile(WIDE("f"));
    options->setTemporaryDwg(WIDE("t"));
    const std::string text =
        optionsText(R"(,"pmi_mode":"graphical","product_structure_mode":"as_mechanical_components",)"
                    R"("colors_mode":"matching_index","hidden_parts_mode":"import_show",)"
                    R"("ins_units_def_source":"unknown")");
    const test::LogCapture log;
    EXPECT_EQ(written(options), text);
    EXPECT_THAT(log.lines("DEBUG"), IsEmpty());
    EXPECT_EQ(written(test::readFrom<Import>(optionsText(""))), text);
    EXPECT_EQ(options->operationType(), EOperationType::Import);
}

TEST(LegacyImportOptions, SayEachSettingAsItIsRead)
{
    Import options;
    options->setFormatOptions(std::make_shared<imp::OptionsSTEP>());
    options->setAlternateSearchPath(WIDE("a"), WIDE("before"));
    const test::LogCapture log;
    readText(options,
             optionsText(R"(,"alternate_search_paths":{"a":"b","n":1,"c":"d","c":"e","z\u0000y":"x\u0000w"},)"
                         R"("colors_mode":"red","hidden_parts_mode":7,"step_rotate_yz":true,"use_interop_mp":1,)"
                         R"("format_options":[{"operation_type":"export","format_type":"STEP"}])"));
    EXPECT_THAT(
        log.complaints(),
        ElementsAre(
            "[DEBUG] LegacyImportOptions.file = f", "[DEBUG] LegacyImportOptions.temporaryDwg = t",
            "[ERROR] Specific format options cannot be read, file: .f", "[DEBUG] LegacyImportOptions.useIopMP = 0",
            "[DEBUG] LegacyImportOptions.pmiMode = graphical",
            "[DEBUG] LegacyImportOptions.productStructureMode = as_mechanical_components",
            "[DEBUG] LegacyImportOptions.colorsMode = rgb", "[DEBUG] LegacyImportOptions.hiddenPartsMode = import_show",
            "[DEBUG] LegacyImportOptions.insUnitsDefSource = unknown",
            "[DEBUG] LegacyImportOptions.insUnitsScaling = 0",
            "[DEBUG] LegacyImportOptions.importAcisWithDraftwell = 0", "[DEBUG] LegacyImportOptions.StepRotateYZ = 1",
            "[DEBUG] LegacyImportOptions.SolidWorksRotateYZ = 0",
            "[DEBUG] LegacyImportOptions.AlternateSearchPaths for a = b",
            "[DEBUG] LegacyImportOptions.AlternateSearchPaths for c = d",
            "[DEBUG] LegacyImportOptions.AlternateSearchPaths for c = e",
            "[DEBUG] LegacyImportOptions.AlternateSearchPaths for z = x",
            "[DEBUG] LegacyImportOptions.PrintDebugLog = 0"));
    // Reading keeps what is there.
    EXPECT_THAT(written(options), testing::HasSubstr(R"("alternate_search_paths":{"a":"before","c":"d","z":"x"})"));
    EXPECT_NE(options->formatOptions(EFormatType::STEP), nullptr);
}

TEST(LegacyImportOptions, SetASearchPathButNotToNothing)
{
    Import options;
    EXPECT_EQ(options->alternateSearchPath(WIDE("k")), WIDE(""));
    options->setAlternateSearchPath(WIDE("k"), WIDE(""));
    EXPECT_FALSE(options->hasAlternateSearchPath(WIDE("k")));
    options->setAlternateSearchPath(WIDE("k"), WIDE("a"));
    options->setAlternateSearchPath(WIDE("k"), WIDE("b"));
    options->setAlternateSearchPath(WIDE("k"), WIDE(""));
    EXPECT_TRUE(options->hasAlternateSearchPath(WIDE("k")));
    EXPECT_EQ(options->alternateSearchPath(WIDE("k")), WIDE("b"));
}

TEST(LegacyOptions, NeedATemporaryDrawing)
{
    Import import;
    Export exported;
    for (const char* const text : {R"({"file":"f"})", R"({"temporary_dwg":1,"file":"f"})"})
    {
        EXPECT_EQ(refusal([&] { readText(import, text); }), kNoDrawing);
        EXPECT_EQ(refusal([&] { readText(exported, text); }), kNoDrawing);
    }
    EXPECT_EQ(import->file(), WIDE("f"));
    EXPECT_EQ(exported->file(), WIDE("f"));
    readText(import, R"({"file":"","temporary_dwg":""})");
}

TEST(LegacyExportOptions, HoldNumbersUnderTheirKeys)
{
    using Options = LegacyExportOptions;
    expectUnder<Export>("step_format_version", &Options::stepFormatVersion, &Options::setStepFormatVersion, "0", 0);
    expectUnder<Export>("acis_format_version", &Options::acisFormatVersion, &Options::setAcisFormatVersion, "2", 2);
    expectUnder<Export>("catiav4_format_version", &Options::catiaV4FormatVersion, &Options::setCatiaV4FormatVersion,
                        "2", 2);
    expectUnder<Export>("catiav5_format_version", &Options::catiaV5FormatVersion, &Options::setCatiaV5FormatVersion,
                        "2", 2);
    expectUnder<Export>("parasolid_format_version", &Options::parasolidFormatVersion,
                        &Options::setParasolidFormatVersion, "-2147483648", -2147483647 - 1);
    expectUnder<Export>("xcgm_format_version", &Options::xcgmFormatVersion, &Options::setXcgmFormatVersion, "2", 2);
    expectUnder<Export>("ins_units_scaling", &Options::insUnitsScaling, &Options::setInsUnitsScaling, "true", true);
    expectUnder<Export>("debug_log", &Options::printDebugLog, &Options::setPrintDebugLog, "true", true);
    expectUnder<Export>("selection_set", &Options::selectionSet, &Options::setSelectionSet, "[3,1]", {3, 1});
    expectUnder<Export>("hidden_components", &Options::hiddenComponents, &Options::setHiddenComponents, "[3,1]",
                        {3, 1});
    expectUnder<Export>("component_names", &Options::componentNames, &Options::setComponentNames,
                        R"([{"component_handle":9,"component_name":"n"}])", {{9, WIDE("n")}});
}

TEST(LegacyExportOptions, WriteNoNumberThatIsItsDefault)
{
    const std::string modes =
        R"(,"ins_units_def_target":"unknown","product_structure_mode":"as_mechanical_components",)"
        R"("hidden_parts_mode":"export_hide")";
    const test::LogCapture log;
    const auto options = test::readFrom<Export>(optionsText(
        R"(,"step_format_version":2,"acis_format_version":0,"xcgm_format_version":2147483648,"pmi_mode":"semantic",)"
        R"("catiav4_format_version":1.0,"format_version":"","geometry_flags":0,"format_options":[{}],)"
        R"("ins_units_scaling":1,"selection_set":{},"hidden_components":[-1,"1",1.0])"));
    EXPECT_EQ(written(options), optionsText(modes));
    EXPECT_EQ(options->stepFormatVersion(), 2);
    EXPECT_THAT(log.complaints(), IsEmpty());
    EXPECT_EQ(options->operationType(), EOperationType::Export);
}

TEST(LegacyExportOptions, KeepTheFirstNameOfAComponent)
{
    Export options;
    options->addComponentName(1, WIDE("a"));
    options->addComponentName(1, WIDE("b"));
    options->addHiddenComponent(1);
    options->addHiddenComponent(1);
    readText(options, memberText("component_names", R"([{"component_handle":1,"component_name":"c"},)"
                                                    R"({"component_handle":2,"component_name":"d"},)"
                                                    R"({"component_handle":2,"component_name":"e"},)"
                                                    R"({"component_handle":3},{"component_handle":-1,)"
                                                    R"("component_name":"f"},4])"));
    EXPECT_THAT(options->componentNames(), ElementsAre(testing::Pair(1, WIDE("a")), testing::Pair(2, WIDE("d"))));
    EXPECT_THAT(options->hiddenComponents(), ElementsAre(1, 1));
}

TEST(LegacyCommand, CarriesTheOptionsOfItsInterfaceOnly)
{
    Command command;
    command.setInternalInterface(EFerrantInterface::Legacy);
    command.setImportOptions(Command::newImportOptions());
    command.setLegacyImportOptions(Command::newLegacyImportOptions());
    command.setLegacyExportOptions(Command::newLegacyExportOptions());
    const Command copy = command;
    EXPECT_EQ(copy.legacyImportOptions(), command.legacyImportOptions());

    command.setType(Command::EType::Export);
    EXPECT_EQ(written(command), R"({"ferrant_interface":"legacy","command":"export","options":{"file":"",)"
                                R"("temporary_dwg":"","ins_units_def_target":"unknown",)"
                                R"("product_structure_mode":"as_mechanical_components",)"
                                R"("hidden_parts_mode":"export_hide"}})");

    readText(command, R"({"command":"import","options":{"file":"f","temporary_dwg":"t"}})");
    EXPECT_EQ(command.legacyImportOptions()->temporaryDwg(), WIDE("t"));
    EXPECT_EQ(command.importOptions(), copy.importOptions());
    EXPECT_EQ(command.legacyExportOptions(), copy.legacyExportOptions());
    EXPECT_EQ(copy.legacyImportOptions()->temporaryDwg(), WIDE(""));
    EXPECT_EQ(test::parsed(written(command))[WIDE("ferrant_interface")], WIDE("legacy"));
}

TEST(LegacyCommand, RefusesNoOptionsOnlyWhenItIsWritten)
{
    Command command;
    command.setInternalInterface(EFerrantInterface::Legacy);
    command.setType(Command::EType::Import);
    command.setLegacyImportOptions(Command::newLegacyImportOptions());
    command.setLegacyImportOptions(nullptr);
    mp::wostringstream stream;
    EXPECT_EQ(refusal([&] { command.writeObject(stream); }),
              "Import(LEGACY) command should contain import options(LEGACY)");
    EXPECT_TRUE(stream.str().empty());
    EXPECT_EQ(refusal([&] { command.setImportOptions(Command::newLegacyImportOptions()); }),
              "Wrong implementation of ImportOptions interface.");
}
