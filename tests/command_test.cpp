#include "tests/support/enum_row.h"
#include "tests/support/json_text.h"
#include "tests/support/log_capture.h"
#include "tests/support/message_text.h"
#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_format_options.h"

#include <gmock/gmock.h>

using namespace vrx;
using test::enumRow;
using test::readText;
using test::refusal;
using test::written;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr const char* kNoDocument = "Invalid json document";
constexpr const char* kNoType = "Json document has no command type.";
constexpr const char* kNoImport = "Import command should contain options.";
constexpr const char* kNoExport = "Export command should contain options.";
constexpr const char* kNoFile = "Json document has no valid file path.";
constexpr const char* kNotRead = "[ERROR] Specific format options cannot be read, file: .a.stp";

Command commandOf(Command::EType type, EFerrantInterface interfaceType = EFerrantInterface::UConnect)
{
    Command command;
    command.setType(type);
    command.setInternalInterface(interfaceType);
    return command;
}

std::string refusalToSend(const Command& command)
{
    mp::wostringstream stream;
    std::string text = refusal([&] { command.writeObject(stream); });
    EXPECT_TRUE(stream.str().empty());
    return text;
}

// Options of somebody else's make.
class OtherExportOptions : public ExportOptions
{
public:
    void readObject(const JsonValue&) override {}
    void writeObject(JsonValue&, JsonAllocator&) const override {}
    const wstring& file() const override { return m_text; }
    void setFile(const wstring&) override {}
    const wstring& formatVersion() const override { return m_text; }
    void setFormatVersion(const wstring&) override {}
    int geometryFlags() const override { return 0; }
    void setGeometryFlags(int) override {}

private:
    wstring m_text;
};

// An import and an export are not written without options.
void setType(Command& command, Command::EType type)
{
    command.setImportOptions(Command::newImportOptions());
    command.setExportOptions(Command::newExportOptions());
    command.setType(type);
}

const test::EnumRow kEnums[] = {
    enumRow("Command::EType", R"({"command":"?","options":{"file":"f"}})", &Command::type, setType,
            {"unknown", "info", "import", "export", "ping"}, "unknown"),
    enumRow("EFerrantInterface of Command", R"({"command":"ping","ferrant_interface":"?"})",
            &Command::internalInterface, &Command::setInternalInterface, {"uconnect", "connect", "legacy"}, "uconnect"),
    enumRow("Result::ECode", "code", &Result::code, &Result::setCode,
            {"unknown", "ok", "warning", "error", "interrupted"}, "unknown"),
};

class CommandEnums : public test::EnumRows
{
};

} // namespace

TEST_P(CommandEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Command, CommandEnums, testing::ValuesIn(kEnums), CommandEnums::nameOf);

TEST(Command, ReadsAndWrites)
{
    const struct
    {
        const char* in;
        const char* out;
    } rows[] = {
        {R"({"command":"ping"})", R"({"ferrant_interface":"legacy","command":"ping"})"},
        {R"({"command":"info","ferrant_interface":"connect"})", R"({"ferrant_interface":"connect","command":"info"})"},
        {R"({"command":"unknown","ferrant_interface":2})", R"({"ferrant_interface":"legacy","command":"unknown"})"},
        {R"({"command":"ping","options":{"file":"a"}})", R"({"ferrant_interface":"legacy","command":"ping"})"},
        {R"({"options":{"file":"a"},"command":"import","ferrant_interface":"connect"})",
         R"({"ferrant_interface":"connect","command":"import","options":{"file":"a"}})"},
        {R"({"command":"export","ferrant_interface":"uconnect","options":{"file":"a","geometry_flags":-1}})",
         R"({"ferrant_interface":"uconnect","command":"export","options":{"file":"a","geometry_flags":-1}})"},
    };
    for (const auto& row : rows)
    {
        Command command = commandOf(Command::EType::Unknown, EFerrantInterface::Legacy);
        readText(command, row.in);
        EXPECT_EQ(written(command), row.out) << row.in;
    }
}

TEST(Command, RefusesToReadAndKeepsWhatItHasRead)
{
    using EType = Command::EType;
    const struct
    {
        const char* in;
        const char* refusal;
        EType type;
        EFerrantInterface interfaceType;
    } rows[] = {
        {"", kNoDocument, EType::Info, EFerrantInterface::UConnect},
        {"[]", kNoDocument, EType::Info, EFerrantInterface::UConnect},
        {R"({"command":"ping"} {})", kNoDocument, EType::Info, EFerrantInterface::UConnect},
        {R"({"ferrant_interface":"legacy"})", kNoType, EType::Info, EFerrantInterface::Legacy},
        {R"({"ferrant_interface":"connect","command":4})", kNoType, EType::Info, EFerrantInterface::Connect},
        {R"({"command":"import"})", kNoImport, EType::Import, EFerrantInterface::UConnect},
        {R"({"command":"import","options":7})", kNoImport, EType::Import, EFerrantInterface::UConnect},
        {R"({"command":"export","options":[]})", kNoExport, EType::Export, EFerrantInterface::UConnect},
        {R"({"ferrant_interface":"legacy","command":"import"})", kNoImport, EType::Import, EFerrantInterface::Legacy},
        {R"({"command":"import","options":{}})", kNoFile, EType::Import, EFerrantInterface::UConnect},
        {R"({"command":"export","options":{"file":1}})", kNoFile, EType::Export, EFerrantInterface::UConnect},
    };
    for (const auto& row : rows)
    {
        Command command = commandOf(EType::Info);
        EXPECT_EQ(refusal([&] { readText(command, row.in); }), row.refusal) << row.in;
        EXPECT_EQ(command.type(), row.type) << row.in;
        EXPECT_EQ(command.internalInterface(), row.interfaceType) << row.in;
        EXPECT_EQ(command.importOptions(), nullptr) << row.in;
        EXPECT_EQ(command.exportOptions(), nullptr) << row.in;
    }
}

TEST(Command, WritesOneMemberALine)
{
    Command command = commandOf(Command::EType::Import);
    command.setImportOptions(Command::newImportOptions());
    command.importOptions()->setFormatOptions(std::make_shared<imp::OptionsParasolid>());
    EXPECT_EQ(test::sentText(command), R"({
  "ferrant_interface": "uconnect",
  "command": "import",
  "options": {
    "file": "",
    "format_options": [{
        "operation_type": "import",
        "format_type": "parasolid",
        "hidden_entities_mode": "unknown"
      }]
  }
})");
}

TEST(Command, WritesNothingWithoutItsOptions)
{
    using EType = Command::EType;
    Command import = commandOf(EType::Import);
    EXPECT_EQ(refusalToSend(import), "Import command should contain import options");
    EXPECT_EQ(refusalToSend(commandOf(EType::Export)), "Export command should contain export options");

    // The options of the other interface are not looked at.
    import.setImportOptions(Command::newImportOptions());
    import.setInternalInterface(EFerrantInterface::Legacy);
    EXPECT_EQ(refusalToSend(import), "Import(LEGACY) command should contain import options(LEGACY)");
    EXPECT_EQ(refusalToSend(commandOf(EType::Export, EFerrantInterface::Legacy)),
              "Export(LEGACY) command should contain export options(LEGACY)");
}

TEST(Command, TakesOptionsOfItsOwnMakeOnly)
{
    Command command;
    command.setExportOptions(Command::newExportOptions());
    const std::shared_ptr<ExportOptions> held = command.exportOptions();
    EXPECT_EQ(refusal([&] { command.setImportOptions(nullptr); }), "Wrong implementation of ImportOptions interface.");
    EXPECT_EQ(refusal([&] { command.setExportOptions(nullptr); }), "Wrong implementation of ExportOptions interface");
    EXPECT_EQ(refusal([&] { command.setExportOptions(std::make_shared<OtherExportOptions>()); }),
              "Wrong implementation of ExportOptions interface");
    EXPECT_EQ(command.exportOptions(), held);
}

TEST(Command, SharesItsOptionsWithCopiesUntilItReadsOthers)
{
    Command command;
    command.setImportOptions(Command::newImportOptions());
    command.setExportOptions(Command::newExportOptions());
    const Command copy = command;
    EXPECT_EQ(copy.importOptions(), command.importOptions());

    readText(command, R"({"command":"import","options":{"file":"b"}})");
    EXPECT_EQ(command.importOptions()->file(), WIDE("b"));
    EXPECT_EQ(copy.importOptions()->file(), WIDE(""));
    EXPECT_EQ(copy.exportOptions(), command.exportOptions());
}

TEST(Command, CarriesAnyUnitsInAFileName)
{
    const wstring file = {u'C', 0x6F22, 0xD83D, 0xDE00, 0xD800, u'"', u'\\', 0xFFFF};
    Command command = commandOf(Command::EType::Export);
    command.setExportOptions(Command::newExportOptions());
    command.exportOptions()->setFile(file);
    mp::wstringstream stream;
    command.writeObject(stream);
    Command received;
    received.readObject(stream);
    EXPECT_TRUE(received.exportOptions()->file() == file);
}

TEST(ImportOptions, ReadsAndWrites)
{
    const char* const kFile = "[DEBUG] ImportOptions.file = a.stp";
    const char* const kKind = "[ERROR] FormatOptions object should have a JSON object type.";
    const struct
    {
        const char* in;
        const char* out;
        std::vector<std::string> log;
    } rows[] = {
        {R"({"file":"a.stp"})", R"({"file":"a.stp"})", {kFile}},
        {R"({"file":"a.stp","format_options":{}})", R"({"file":"a.stp"})", {kFile}},
        {R"({"file":"a.stp","format_options":[{"operation_type":"export","format_type":"STEP"},7]})",
         R"({"file":"a.stp"})",
         {kFile, kNotRead, kKind, kNotRead}},
        // By the number of the format, the last of each
        {R"({"file":"a.stp","format_options":[)"
         R"({"operation_type":"import","format_type":"JT","edges_mode":"all"},)"
         R"({"operation_type":"import","format_type":"parasolid"},)"
         R"({"operation_type":"import","format_type":"JT","edges_mode":"none"}]})",
         R"({"file":"a.stp","format_options":[)"
         R"({"operation_type":"import","format_type":"parasolid","hidden_entities_mode":"unknown"},)"
         R"({"operation_type":"import","format_type":"JT","edges_mode":"none","user_prop_mode":"unknown"}]})",
         {kFile}},
    };
    for (const auto& row : rows)
    {
        const std::shared_ptr<ImportOptions> options = Command::newImportOptions();
        const test::LogCapture log;
        readText(*options, row.in);
        EXPECT_EQ(log.complaints(), row.log) << row.in;
        EXPECT_EQ(written(*options), row.out) << row.in;
    }
}

TEST(ImportOptions, HoldsOneObjectAFormat)
{
    const std::shared_ptr<ImportOptions> options = Command::newImportOptions();
    const auto first = std::make_shared<imp::OptionsSTEP>();
    const auto second = std::make_shared<imp::OptionsSTEP>();
    options->setFormatOptions(first);
    options->setFormatOptions(second);
    options->setFormatOptions(nullptr);
    EXPECT_EQ(options->formatOptions(EFormatType::STEP), second);
    EXPECT_EQ(options->formatOptions(EFormatType::IGES), nullptr);
    EXPECT_EQ(options->operationType(), EOperationType::Import);

    // A read adds to what is there.
    readText(*options, R"({"file":"","format_options":[{"operation_type":"import","format_type":"IGES"}]})");
    EXPECT_EQ(options->formatOptions(EFormatType::STEP), second);
    EXPECT_NE(options->formatOptions(EFormatType::IGES), nullptr);
}

TEST(ExportOptions, ReadsAndWrites)
{
    const struct
    {
        const char* in;
        const char* out;
        std::vector<std::string> log;
    } rows[] = {
        {R"({"file":""})", R"({"file":"","format_version":"v","geometry_flags":5})", {"", "v", "5"}},
        {R"({"geometry_flags":-2147483648,"format_version":"w","file":"a"})",
         R"({"file":"a","format_version":"w","geometry_flags":-2147483648})",
         {"a", "w", "-2147483648"}},
        {R"({"file":"a","format_version":1,"geometry_flags":2147483648})",
         R"({"file":"a","format_version":"v","geometry_flags":5})",
         {"a", "v", "5"}},
        {R"({"file":"a","format_version":"","geometry_flags":0})", R"({"file":"a"})", {"a", "", "0"}},
    };
    for (const auto& row : rows)
    {
        const std::shared_ptr<ExportOptions> options = Command::newExportOptions();
        options->setFormatVersion(WIDE("v"));
        options->setGeometryFlags(5);
        const auto lines =
            ElementsAre("ExportOptions.file = " + row.log[0], "ExportOptions.formatVersion = " + row.log[1],
                        "ExportOptions.geometryFlags = " + row.log[2]);
        const test::LogCapture readLog;
        readText(*options, row.in);
        EXPECT_THAT(readLog.lines("DEBUG"), lines) << row.in;
        const test::LogCapture writeLog;
        EXPECT_EQ(written(*options), row.out) << row.in;
        EXPECT_THAT(writeLog.lines("DEBUG"), lines) << row.in;
    }
    EXPECT_EQ(Command::newExportOptions()->operationType(), EOperationType::Export);
}

TEST(Options, AreStrictAboutTheirKindAndFile)
{
    const std::shared_ptr<FerrantOptions> all[] = {Command::newImportOptions(), Command::newExportOptions(),
                                                   Command::newLegacyImportOptions(),
                                                   Command::newLegacyExportOptions()};
    for (const std::shared_ptr<FerrantOptions>& options : all)
    {
        const test::LogCapture log;
        for (const char* const text : {"[]", "null", "7"})
        {
            EXPECT_EQ(refusal([&] { readText(*options, text); }), "!object.IsObject()") << text;
        }
        for (const char* const text : {"{}", R"({"file":7})", R"({"file":null})"})
        {
            EXPECT_EQ(refusal([&] { readText(*options, text); }), kNoFile) << text;
        }
        EXPECT_THAT(log.complaints(), IsEmpty());
    }
}

TEST(Result, ReadsAndWrites)
{
    const struct
    {
        const char* in;
        const char* out;
    } rows[] = {
        {R"({"code":"ok"})", R"({"code":"ok","message":"before","is_finished":true})"},
        {R"({"is_finished":false,"message":"m","code":"warning"})",
         R"({"code":"warning","message":"m","is_finished":false})"},
        {R"({"code":"error","message":"","is_finished":0})", R"({"code":"error","is_finished":true})"},
        {R"({"code":"interrupted","message":null})", R"({"code":"interrupted","message":"before","is_finished":true})"},
        {R"({"code":"OK","message":"m\u0000n"})", R"({"code":"unknown","message":"m","is_finished":true})"},
    };
    for (const auto& row : rows)
    {
        Result result;
        result.setMessage(WIDE("before"));
        result.setFinished(true);
        readText(result, row.in);
        EXPECT_EQ(written(result), row.out) << row.in;
    }
}

TEST(Result, RefusesWhatHasNoCode)
{
    Result result;
    EXPECT_EQ(written(result), R"({"code":"ok","is_finished":false})");
    EXPECT_EQ(refusal([&] { readText(result, "7"); }), kNoDocument);
    for (const char* const text : {"{}", R"({"code":1,"message":"m"})"})
    {
        EXPECT_EQ(refusal([&] { readText(result, text); }), "Json document has no result code.");
    }
}
