#include "tests/full_rows/full_rows.h"
#include "tests/support/message_object.h"
#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_ferrant_info.h"

using namespace vrx;

namespace test
{

namespace
{

// The settings of a command, whose classes only the factories know.
template <auto Make>
FullRow settingsRow(const char* title, const char* text)
{
    FullRow row;
    row.title = title;
    row.make = [] { return std::shared_ptr<IJsonObject>(Make()); };
    row.in = text;
    row.out = text;
    return std::move(row).throws();
}

} // namespace

std::vector<FullRow> messageRows()
{
    const std::string format = R"({"description":"d","extensions":["e"],"filters":["f;g"]})";
    const std::string core = R"({"name":"k","version":"1"})";
    return {
        settingsRow<Command::newImportOptions>("ImportOptions",
                                               R"({"file":"f","format_options":[{"operation_type":"import",)"
                                               R"("format_type":"JT","edges_mode":"all","user_prop_mode":"unknown"}]})")
            .loudAbout({"format_options"})
            .keeps({"format_options"}),
        settingsRow<Command::newExportOptions>("ExportOptions",
                                               R"({"file":"f","format_version":"v","geometry_flags":-3})"),
        fullRow<MessageObject<Command>>("Command", R"({"ferrant_interface":"connect","command":"ping"})").throws(),
        fullRow<MessageObject<Result>>("Result", R"({"code":"warning","message":"m","is_finished":true})").throws(),
        fullRow<ThirdpartyCore>("ThirdpartyCore", core).throws(),
        fullRow<Format>("Format", format).throws(),
        fullRow<MessageObject<FerrantInfo>>(
            "FerrantInfo", R"({"name":"n","version":"v","ferrant_interface":"legacy","thirdparty_cores":[)" + core +
                               R"(],"parasolid_mode":"kernel","import_formats":[)" + format +
                               R"(],"export_formats":[)" + format + "]}")
            .throws(),
    };
}

} // namespace test
