#include "tests/support/enum_row.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_format_options.h"

#include <gmock/gmock.h>

#include <functional>
#include <map>

using namespace vrx;
using test::enumRow;
using test::row;
using testing::ElementsAre;
using testing::Pair;
using testing::SizeIs;

namespace
{

constexpr const char* kOtherFormat = "[ERROR] FormatOptions format type doesn't match.";
constexpr const char* kOtherOperation = "[ERROR] FormatOptions operation type doesn't match.";
constexpr const char* kNoOptions = "[INFO] FormatOptions: No options for given format.";

constexpr const char* kEmptyIGES =
    R"({"operation_type":"import","format_type":"IGES","import_entities":"unknown","hidden_entities_mode":"unknown"})";
constexpr const char* kEmptySTEP =
    R"({"operation_type":"import","format_type":"STEP","layer_name_mode":"unknown","visu_pmi_mode":"unknown"})";
constexpr const char* kNoPMI =
    R"({"operation_type":"import","format_type":"STEP","layer_name_mode":"unknown","visu_pmi_mode":"none"})";
constexpr const char* kEmptyJT =
    R"({"operation_type":"import","format_type":"JT","edges_mode":"unknown","user_prop_mode":"unknown"})";
constexpr const char* kEmptyParasolid =
    R"({"operation_type":"import","format_type":"parasolid","hidden_entities_mode":"unknown"})";
constexpr const char* kEmptyCatiaV5 =
    R"({"operation_type":"import","format_type":"CatiaV5","import_visualization":false,)"
    R"("import_root_visualization":false,"import_preview_graphics":false,"in_work_object_mode":"unknown",)"
    R"("name_processing_mode":"unknown","assembly_unfolded_view_mode":"unknown","mfg_processing_mode":"unknown",)"
    R"("hidden_entities_mode":"unknown","suppressed_entities_mode":"unknown","visu_pmi_mode":"unknown",)"
    R"("mfg_data_mode":"unknown","doc_delay_loading_mode":"none"})";
constexpr const char* kEmptySolidEdge = R"({"operation_type":"import","format_type":"SolidEdge","search_paths":"",)"
                                        R"("assembly_path_pref":"unknown","hidden_entities_mode":"unknown"})";

const test::ModelRow kRows[] = {
    // A mismatch is logged, and the rest is taken all the same.
    row<imp::OptionsSTEP>("STEPOfAnotherFormat",
                          R"({"operation_type":"import","format_type":"IGES","visu_pmi_mode":"none"})", kNoPMI,
                          {kOtherFormat}),
    row<imp::OptionsSTEP>("STEPOfNoFormat", R"({"visu_pmi_mode":"none"})", kNoPMI, {kOtherFormat}),
    row<imp::OptionsSTEP>("STEPOfAFormatNumber", R"({"format_type":9,"operation_type":2})", kEmptySTEP, {kOtherFormat}),
    row<imp::OptionsSTEP>("STEPOfAnotherOperation",
                          R"({"operation_type":"Import","format_type":"IGES","visu_pmi_mode":"none"})", kNoPMI,
                          {kOtherOperation}),

    row<imp::OptionsParasolid>("ParasolidOfAnotherFormat",
                               R"({"format_type":"Parasolid","hidden_entities_mode":"only_with_visible_links"})",
                               R"({"operation_type":"import","format_type":"parasolid",)"
                               R"("hidden_entities_mode":"only_with_visible_links"})",
                               {kOtherFormat}),
};

class FormatOptionsRows : public test::ModelRows
{
};

// Settings of any format and operation.
class AnyOptions : public imp::FormatOptions
{
public:
    AnyOptions(EOperationType operation, EFormatType format)
        : m_operation(operation)
        , m_format(format)
    {
    }

    EOperationType operationType() const override { return m_operation; }
    EFormatType formatType() const override { return m_format; }

private:
    EOperationType m_operation;
    EFormatType m_format;
};

mp::wstring writtenName(const AnyOptions& options, const char* key)
{
    return test::parsed(test::written(options))[test::wide(key).c_str()].GetString();
}

// The number whose settings take the text for their own.
template <class E, class OptionsOf>
E accepting(OptionsOf optionsOf, const std::string& text)
{
    for (int number = 0;; ++number)
    {
        AnyOptions options = optionsOf(static_cast<E>(number));
        const test::LogCapture log;
        test::readText(options, text);
        if (log.complaints().empty() || number == 100)
        {
            return static_cast<E>(number);
        }
    }
}

AnyOptions optionsFor(EOperationType operation)
{
    return AnyOptions(operation, EFormatType::STEP);
}

AnyOptions optionsOf(EFormatType format)
{
    return AnyOptions(EOperationType::Import, format);
}

const test::EnumRow kEnums[] = {
    enumRow<EOperationType>(
        "EOperationType", [](EOperationType operation) { return writtenName(optionsFor(operation), "operation_type"); },
        [](const wstring& name) {
            return accepting<EOperationType>(optionsFor, R"({"format_type":"STEP","operation_type":")" +
                                                             mp::toNarrow(name) + "\"}");
        },
        {{1, "import"}, {2, "export"}}, "export"),
    enumRow<EFormatType>(
        "EFormatType", [](EFormatType format) { return writtenName(optionsOf(format), "format_type"); },
        [](const wstring& name) {
            return accepting<EFormatType>(optionsOf, R"({"format_type":")" + mp::toNarrow(name) + "\"}");
        },
        {"unknown",
         "general",
         "CGM",
         "ACIS",
         "parasolid",
         "CatiaV5",
         "CatiaV5Drawing",
         "CatiaV4",
         "IGES",
         "STEP",
         "STL",
         "Creo",
         "NX",
         "SolidWorks",
         "SolidWorksDrawing",
         "SolidEdge",
         "JT",
         "Inventor",
         {18, "3D_PDF"},
         "3D_XML",
         "autocad",
         "U3D",
         "VDA_FS",
         "XML_EBOM",
         "XCGM",
         "graphical",
         "mechanical",
         "picture",
         "IFC",
         "EDrawings",
         {30, "UDL"}},
        "3D_PDF"),
    enumRow("ETranslateHiddenEntitiesModeType", "hidden_entities_mode", &imp::OptionsIGES::hiddenEntitiesMode,
            &imp::OptionsIGES::setHiddenEntitiesMode, {"unknown", "all", "none", "only_with_visible_links"}, "all"),
    enumRow("EImportEntities", "import_entities", &imp::OptionsIGES::importEntities,
            &imp::OptionsIGES::setImportEntities, {"unknown", "root_only", "root_and_nonroot"}, "root_and_nonroot"),
    enumRow("EVisuPMIProcessingMode", "visu_pmi_mode", &imp::OptionsSTEP::visuPMIProcessingMode,
            &imp::OptionsSTEP::setVisuPMIProcessingMode, {"unknown", "all", "none"}, "all"),
    enumRow("ELayerNameProcessingModeType", "layer_name_mode", &imp::OptionsSTEP::layerNameProcessingMode,
            &imp::OptionsSTEP::setLayerNameProcessingMode, {"unknown", "asm_rep", "saved_visu_rep"}, "asm_rep"),
    enumRow("EImportEdgesModeType", "edges_mode", &imp::OptionsJT::importEdgesMode, &imp::OptionsJT::setImportEdgesMode,
            {"unknown", "all", "none"}, "all"),
    enumRow("EUserPropertiesModeType", "user_prop_mode", &imp::OptionsJT::userPropertiesMode,
            &imp::OptionsJT::setUserPropertiesMode, {"unknown", "translate_all", "translate_none"}, "translate_all"),
    enumRow("ETranslateSuppressedEntitiesModeType", "suppressed_entities_mode", &imp::OptionsNX::suppressedEntitiesMode,
            &imp::OptionsNX::setSuppressedEntitiesMode, {"unknown", "all", "none"}, "all"),
    enumRow("EAssemblyPathPrefType", "assembly_path_pref", &imp::OptionsInventor::assemblyPathPreference,
            &imp::OptionsInventor::setAssemblyPathPreference,
            {"unknown", "subfolders_first", "root_folder_only", "root_folder_first"}, "root_folder_first"),
    enumRow<imp::OptionsSolidEdge>(
        "EPersistentNameProcessingModeType", R"({"pname_modes":["?"]})",
        [](const imp::OptionsSolidEdge& options) { return *options.persistentNameModes().begin(); },
        &imp::OptionsSolidEdge::addPersistentNameMode,
        {"none", "vertex", "edge", {4, "face"}, {16, "instance"}, {255, "unknown"}}, "edge"),
    enumRow("EProcessInWorkObjectModeType", "in_work_object_mode", &imp::OptionsCatiaV5::processInWorkObject,
            &imp::OptionsCatiaV5::setProcessInWorkObject, {"unknown", "true", "false"}, "false"),
    enumRow("ENameProcessingModeType", "name_processing_mode", &imp::OptionsCatiaV5::nameProcessingMode,
            &imp::OptionsCatiaV5::setNameProcessingMode, {"unknown", "short_names", "long_names"}, "long_names"),
    enumRow("EAssemblyUnfoldedViewMode", "assembly_unfolded_view_mode", &imp::OptionsCatiaV5::assemblyUnfoldedViewMode,
            &imp::OptionsCatiaV5::setAssemblyUnfoldedViewMode, {"unknown", "true", "false"}, "false"),
    enumRow("EImportMfgProcessingModeType", "mfg_processing_mode", &imp::OptionsCatiaV5::mfgProcessingMode,
            &imp::OptionsCatiaV5::setMfgProcessingMode, {"unknown", "features_only", "results_only"}, "features_only"),
    enumRow("EProcessMfgDataModeType", "mfg_data_mode", &imp::OptionsCatiaV5::processMfgDataMode,
            &imp::OptionsCatiaV5::setProcessMfgDataMode, {"unknown", "all", "none"}, "all"),
    enumRow("EDocumentDelayLoadingMode", "doc_delay_loading_mode", &imp::OptionsCatiaV5::documentDelayLoadingMode,
            &imp::OptionsCatiaV5::setDocumentDelayLoadingMode, {"none", "part"}, "none"),
    enumRow("EImportMfgHolesOnSheetsMode", "holes_on_sheets_mode", &imp::OptionsCreo::mfgHolesOnSheetsMode,
            &imp::OptionsCreo::setMfgHolesOnSheetsMode, {"unknown", "ignore", "include"}, "ignore"),
    enumRow("ETranslateDrivingDimensionsModeType", "driving_dimensions_type",
            &imp::OptionsCreo::translateDrivingDimensionsMode, &imp::OptionsCreo::setTranslateDrivingDimensionsMode,
            {"unknown", "true", "false"}, "false"),
    enumRow("ETranslateConstructionGeometriesModeType", "construction_geom_mode",
            &imp::OptionsCreo::translateConstructionGeometriesMode,
            &imp::OptionsCreo::setTranslateConstructionGeometriesMode, {"unknown", "true", "false"}, "false"),
    enumRow("ETranslateReferenceGeometryMode", "reference_geom_mode", &imp::OptionsCreo::translateReferenceGeometryMode,
            &imp::OptionsCreo::setTranslateReferenceGeometryMode, {"unknown", "true", "false"}, "false"),
    enumRow("EActiveStateProcessingModeType", "active_state_mode", &imp::OptionsInventor::activeStateProcessingMode,
            &imp::OptionsInventor::setActiveStateProcessingMode, {"unknown", "active_only", "active_and_inactive"},
            "active_and_inactive"),
    enumRow("EImportProductStructureRepresentationMode", "product_structure_mode",
            &imp::OptionsSolidWorks::productStructureMode, &imp::OptionsSolidWorks::setProductStructureMode,
            {"unknown", "asm_rep", "saved_visu_rep", "asm_rep_and_saved_visu_rep"}, "asm_rep"),
};

class FormatOptionsEnums : public test::EnumRows
{
};

// What is set is written under the key, and what is read under the key is what the class returns.
template <class T, class Getter, class Setter, class Value>
void expectUnder(const std::string& key, Getter getter, Setter setter, const std::string& json, const Value& value)
{
    T set;
    std::invoke(setter, set, value);
    const T read = test::readFrom<T>("{\"" + key + "\":" + json + '}');
    EXPECT_EQ(std::invoke(getter, read), value) << key;
    EXPECT_EQ(test::written(set), test::written(read)) << key;
}

template <class T>
void checkSwitches()
{
    expectUnder<T>("import_visualization", &T::importVisualization, &T::setImportVisualization, "true", true);
    expectUnder<T>("import_root_visualization", &T::importRootVisualization, &T::setImportRootVisualization, "true",
                   true);
    expectUnder<T>("import_preview_graphics", &T::importPreviewGraphics, &T::setImportPreviewGraphics, "true", true);
}

template <class T, class Getter, class Setter>
void checkTexts(Getter searchPaths, Setter setSearchPaths)
{
    const wstring text = WIDE("t");
    expectUnder<T>("search_paths", searchPaths, setSearchPaths, R"("t")", text);
    expectUnder<T>("configuration_name", &T::importConfiguration, &T::setImportConfiguration, R"("t")", text);
}

// A settings class of a host, for an export.
class ExportSTEP : public exp::FormatOptions
{
public:
    EFormatType formatType() const override { return EFormatType::STEP; }
};

} // namespace

TEST_P(FormatOptionsRows, ReadAndWritten)
{
    check(GetParam());
}

TEST_P(FormatOptionsEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(FormatOptions, FormatOptionsEnums, testing::ValuesIn(kEnums), FormatOptionsEnums::nameOf);

INSTANTIATE_TEST_SUITE_P(FormatOptions, FormatOptionsRows, testing::ValuesIn(kRows), test::ModelRows::nameOf);

TEST(FormatOptions, AreMadeByOperationAndFormat)
{
    const char* const kNoOperation = "[ERROR] FormatOptions object should contain operation type.";
    const char* const kNoFormat = "[ERROR] FormatOptions object should contain format type.";
    const struct
    {
        const char* in;
        const char* out;
        std::vector<std::string> log;
    } rows[] = {
        {R"({"operation_type":"import","format_type":"IGES"})", kEmptyIGES, {}},
        {R"({"operation_type":"import","format_type":"STEP","visu_pmi_mode":"none"})", kNoPMI, {}},
        {R"({"operation_type":"import","format_type":"JT"})", kEmptyJT, {}},
        {R"({"operation_type":"import","format_type":"parasolid"})", kEmptyParasolid, {}},
        {R"({"operation_type":"import","format_type":"CatiaV5"})", kEmptyCatiaV5, {}},
        // A key of other formats is passed over.
        {R"({"operation_type":"import","format_type":"SolidEdge","visu_pmi_mode":"all"})", kEmptySolidEdge, {}},
        {"[]", nullptr, {"[ERROR] FormatOptions object should have a JSON object type."}},
        {R"({"format_type":"STEP"})", nullptr, {kNoOperation}},
        {R"({"operation_type":1,"format_type":"STEP"})", nullptr, {kNoOperation}},
        {R"({"operation_type":"export"})", nullptr, {kNoFormat}},
        {R"({"operation_type":"import","format_type":9})", nullptr, {kNoFormat}},
        {R"({"operation_type":"export","format_type":"STEP"})", nullptr, {}},
        {R"({"operation_type":"Import","format_type":"STEP"})", nullptr, {}},
        {R"({"operation_type":"import","format_type":"STL"})", nullptr, {kNoOptions}},
        {R"({"operation_type":"import","format_type":"Step"})", nullptr, {kNoOptions}},
    };
    for (const auto& row : rows)
    {
        const test::LogCapture log;
        const std::shared_ptr<IFormatOptions> options = IFormatOptions::readOptions(test::parsed(row.in));
        EXPECT_EQ(log.complaints(), row.log) << row.in;
        ASSERT_EQ(options == nullptr, row.out == nullptr) << row.in;
        if (options != nullptr)
        {
            EXPECT_EQ(test::written(*options), row.out);
        }
    }
}

TEST(FormatOptions, HaveAClassForFifteenFormats)
{
    std::map<int, std::string> classes;
    for (int number = 0; number <= 30; ++number)
    {
        const auto format = static_cast<EFormatType>(number);
        const test::LogCapture log;
        const auto options = IFormatOptions::readOptions(test::parsed(test::written(optionsOf(format))));
        if (options == nullptr)
        {
            EXPECT_THAT(log.complaints(), ElementsAre(kNoOptions)) << number;
            continue;
        }
        EXPECT_EQ(options->formatType(), format);
        test::readText(*options, "[]");
        EXPECT_THAT(log.complaints(), SizeIs(1)) << number;
        classes[number] = log.complaints().back();
    }
    const auto kind = [](const std::string& name) {
        return "[ERROR] " + name + " object should have a JSON object type.";
    };
    EXPECT_THAT(classes,
                ElementsAre(Pair(4, kind("OptionsParasolid")), Pair(5, kind("OptionsCatiaV5")),
                            Pair(6, kind("OptionsCatiaV5Drawing")), Pair(7, kind("OptionsCatiaV4")),
                            Pair(8, kind("OptionsIGES")), Pair(9, kind("OptionsSTEP")), Pair(11, kind("OptionsCreo")),
                            Pair(12, kind("OptionsNX")), Pair(13, kind("OptionsSolidWorks")),
                            Pair(14, kind("OptionsSolidWorksDrawing")), Pair(15, kind("OptionsSolidEdge")),
                            Pair(16, kind("OptionsJT")), Pair(17, kind("OptionsInventor")),
                            Pair(19, kind("Options3DXML")), Pair(24, kind("OptionsXCGM"))));
}

TEST(FormatOptions, HoldSwitchesAndTextsUnderTheirKeys)
{
    using imp::OptionsCreo;
    using imp::OptionsNX;
    using imp::OptionsSolidWorks;
    checkSwitches<imp::OptionsCatiaV5>();
    checkSwitches<OptionsSolidWorks>();
    checkTexts<OptionsCreo>(&OptionsCreo::alternateSearchPaths, &OptionsCreo::setAlternateSearchPaths);
    checkTexts<OptionsNX>(&OptionsNX::assemblySearchPaths, &OptionsNX::setAssemblySearchPaths);
    checkTexts<OptionsSolidWorks>(&OptionsSolidWorks::assemblySearchPaths, &OptionsSolidWorks::setAssemblySearchPaths);
}

TEST(FormatOptions, OfAnExportTellTheirOperation)
{
    ExportSTEP options;
    EXPECT_EQ(test::written(options), R"({"operation_type":"export","format_type":"STEP"})");
    const test::LogCapture log;
    test::readText(options, R"({"operation_type":"export","format_type":"STEP"})");
    test::readText(options, R"({"format_type":"STEP"})");
    test::readText(options, R"({"operation_type":"import"})");
    test::readText(options, "null");
    EXPECT_THAT(log.complaints(),
                ElementsAre(kOtherOperation, "[ERROR] FormatOptions object should have a JSON object type."));
}

TEST(FormatOptions, AddToTheirSetOfModesWhenRead)
{
    using EMode = EPersistentNameProcessingModeType;
    imp::OptionsSolidEdge options;
    options.addPersistentNameMode(EMode::None);
    options.setPersistentNameModes({EMode::Instance});
    options.addPersistentNameMode(EMode{8});
    test::readText(options, R"({"pname_modes":["unknown","face",3,"vertex","face","Face"]})");
    test::readText(options, R"({"pname_modes":{"none":"none"}})");
    EXPECT_EQ(
        test::written(options),
        R"({"operation_type":"import","format_type":"SolidEdge","search_paths":"","assembly_path_pref":"unknown",)"
        R"("hidden_entities_mode":"unknown","pname_modes":["vertex","edge","face","none","instance","unknown"]})");
}
