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
FullRow settingsRow(const char* title, const std::string& text)
{
    FullRow row;
    row.title = title;
    row.make = [] { return std::shared_ptr<IJsonObject>(Make()); };
    row.in = text;
    row.out = text;
    return std::move(row).throws();
}

// Of every format that has options.
std::string formatOptions()
{
    std::string text;
    for (const FullRow& row : formatOptionsRows())
    {
        text += (text.empty() ? "" : ",") + row.in;
    }
    return R"("format_options":[)" + text + "]";
}

} // namespace

std::vector<FullRow> messageRows()
{
    const std::string format = R"({"description":"d","extensions":["e"],"filters":["f;g"]})";
    const std::string core = R"({"name":"k","version":"1"})";
    return {
        settingsRow<Command::newImportOptions>("ImportOptions", R"({"file":"f",)" + formatOptions() + "}")
            .loudAbout({"format_options"})
            .keeps({"format_options"}),
        settingsRow<Command::newExportOptions>("ExportOptions",
                                               R"({"file":"f","format_version":"v","geometry_flags":-3})"),
        settingsRow<Command::newLegacyImportOptions>(
            "LegacyImportOptions",
            R"({"file":"f","temporary_dwg":"t",)" + formatOptions() +
                R"(,"use_interop_mp":true,"pmi_mode":"semantic",)"
                R"("product_structure_mode":"as_blocks","colors_mode":"nearest_index",)"
                R"("hidden_parts_mode":"import_hide","ins_units_def_source":"microns","ins_units_scaling":true,)"
                R"("import_acis_with_draftwell":true,"step_rotate_yz":true,"solidworks_rotate_yz":true,)"
                R"("alternate_search_paths":{"a":"b","c":""},"debug_log":true})")
            .loudAbout({"format_options"})
            .keeps({"format_options"}),
        settingsRow<Command::newLegacyExportOptions>(
            "LegacyExportOptions",
            R"({"file":"f","temporary_dwg":"t","format_version":"v","geometry_flags":-3,"ins_units_scaling":true,)"
            R"("ins_units_def_target":"decimeters","product_structure_mode":"none",)"
            R"("hidden_parts_mode":"do_not_export","selection_set":[18446744073709551615,1],)"
            R"("component_names":[{"component_handle":1,"component_name":"a"},)"
            R"({"component_handle":18446744073709551615,"component_name":""}],"hidden_components":[2,2],)"
            R"("step_format_version":3,"acis_format_version":4,"catiav4_format_version":5,)"
            R"("catiav5_format_version":-6,"parasolid_format_version":7,"xcgm_format_version":8,"debug_log":true})")
            .appends({"selection_set", "hidden_components"})
            .keeps({"component_names"}),
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
