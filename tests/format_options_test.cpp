#include "tests/support/enum_row.h"
#include "tests/support/model_row.h"
#include "vrx_api/format_options/shared_mode_tables.h"
#include "vrx_api/json/shapes.h"
#include "vrx_api/vrx_api_format_options.h"

#include <gmock/gmock.h>

using namespace vrx;
using test::enumRow;
using test::row;
using testing::ElementsAre;

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

// An enumeration that settings to come will hold.
template <class E>
test::EnumRow tableRow(const char* title, std::vector<test::EnumEntry> entries, const char* ofUnlistedName)
{
    return enumRow<E>(
        title, [](E value) { return wstring(enumName(value)); }, [](const wstring& name) { return enumValue<E>(name); },
        std::move(entries), ofUnlistedName);
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
    enumRow("ETranslateHiddenEntitiesModeType", R"({"format_type":"IGES","hidden_entities_mode":"?"})",
            &imp::OptionsIGES::hiddenEntitiesMode, &imp::OptionsIGES::setHiddenEntitiesMode,
            {"unknown", "all", "none", "only_with_visible_links"}, "all"),
    enumRow("EImportEntities", R"({"format_type":"IGES","import_entities":"?"})", &imp::OptionsIGES::importEntities,
            &imp::OptionsIGES::setImportEntities, {"unknown", "root_only", "root_and_nonroot"}, "root_and_nonroot"),
    enumRow("EVisuPMIProcessingMode", R"({"format_type":"STEP","visu_pmi_mode":"?"})",
            &imp::OptionsSTEP::visuPMIProcessingMode, &imp::OptionsSTEP::setVisuPMIProcessingMode,
            {"unknown", "all", "none"}, "all"),
    enumRow("ELayerNameProcessingModeType", R"({"format_type":"STEP","layer_name_mode":"?"})",
            &imp::OptionsSTEP::layerNameProcessingMode, &imp::OptionsSTEP::setLayerNameProcessingMode,
            {"unknown", "asm_rep", "saved_visu_rep"}, "asm_rep"),
    enumRow("EImportEdgesModeType", R"({"format_type":"JT","edges_mode":"?"})", &imp::OptionsJT::importEdgesMode,
            &imp::OptionsJT::setImportEdgesMode, {"unknown", "all", "none"}, "all"),
    enumRow("EUserPropertiesModeType", R"({"format_type":"JT","user_prop_mode":"?"})",
            &imp::OptionsJT::userPropertiesMode, &imp::OptionsJT::setUserPropertiesMode,
            {"unknown", "translate_all", "translate_none"}, "translate_all"),
    tableRow<ETranslateSuppressedEntitiesModeType>("ETranslateSuppressedEntitiesModeType", {"unknown", "all", "none"},
                                                   "all"),
    tableRow<EAssemblyPathPrefType>("EAssemblyPathPrefType",
                                    {"unknown", "subfolders_first", "root_folder_only", "root_folder_first"},
                                    "root_folder_first"),
    tableRow<EPersistentNameProcessingModeType>(
        "EPersistentNameProcessingModeType",
        {"none", "vertex", "edge", {4, "face"}, {16, "instance"}, {255, "unknown"}}, "edge"),
};

class FormatOptionsEnums : public test::EnumRows
{
};

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

TEST(FormatOptions, ASetOfModesAddsAndIsSorted)
{
    using EMode = EPersistentNameProcessingModeType;
    std::set<EMode> modes = {EMode::Instance};
    decode(test::parsed(R"(["unknown","face",3,"vertex","face","Face"])"), valid(modes));
    decode(test::parsed(R"({"none":"none"})"), valid(modes));
    modes.insert(EMode{8});
    JsonDocument document;
    encode(valid(modes), document.GetAllocator()).Swap(document);
    EXPECT_EQ(test::textOf(document), R"(["vertex","edge","face","none","instance","unknown"])");
}
