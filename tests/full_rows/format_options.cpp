#include "tests/full_rows/full_rows.h"
#include "vrx_api/vrx_api_format_options.h"

using namespace vrx;

namespace test
{

namespace
{

// The first two keys are those of the class; wrong ones are logged. The modes of persistent names are a set.
template <class T>
FullRow optionsRow(const std::string& title, const std::string& text)
{
    const FullRow::Keys identity = {"operation_type", "format_type"};
    return fullRow<T>(title, text).fixes(identity).loudAbout(identity).keeps({"pname_modes"});
}

} // namespace

// In the order in which a command writes them.
std::vector<FullRow> formatOptionsRows()
{
    return {
        optionsRow<imp::OptionsParasolid>("OptionsParasolid", R"({"operation_type":"import","format_type":"parasolid",)"
                                                              R"("hidden_entities_mode":"none"})"),
        optionsRow<imp::OptionsCatiaV5>(
            "OptionsCatiaV5",
            R"({"operation_type":"import","format_type":"CatiaV5","import_visualization":true,)"
            R"("import_root_visualization":true,"import_preview_graphics":true,"in_work_object_mode":"true",)"
            R"("name_processing_mode":"short_names","assembly_unfolded_view_mode":"false",)"
            R"("mfg_processing_mode":"results_only","hidden_entities_mode":"none","suppressed_entities_mode":"all",)"
            R"("visu_pmi_mode":"none","mfg_data_mode":"all","doc_delay_loading_mode":"part",)"
            R"("pname_modes":["none","face"]})"),
        optionsRow<imp::OptionsCatiaV5Drawing>("OptionsCatiaV5Drawing",
                                               R"({"operation_type":"import","format_type":"CatiaV5Drawing",)"
                                               R"("hidden_entities_mode":"none","visu_pmi_mode":"all"})"),
        optionsRow<imp::OptionsCatiaV4>("OptionsCatiaV4", R"({"operation_type":"import","format_type":"CatiaV4",)"
                                                          R"("import_entities":"root_only",)"
                                                          R"("hidden_entities_mode":"none","layer_filter":"l"})"),
        optionsRow<imp::OptionsIGES>("OptionsIGES", R"({"operation_type":"import","format_type":"IGES",)"
                                                    R"("import_entities":"root_only","hidden_entities_mode":"none"})"),
        optionsRow<imp::OptionsSTEP>("OptionsSTEP", R"({"operation_type":"import","format_type":"STEP",)"
                                                    R"("layer_name_mode":"saved_visu_rep","visu_pmi_mode":"none"})"),
        optionsRow<imp::OptionsCreo>(
            "OptionsCreo", R"({"operation_type":"import","format_type":"Creo","search_paths":"p",)"
                           R"("configuration_name":"c","holes_on_sheets_mode":"include",)"
                           R"("hidden_entities_mode":"only_with_visible_links","suppressed_entities_mode":"none",)"
                           R"("visu_pmi_mode":"all","driving_dimensions_type":"true","construction_geom_mode":"false",)"
                           R"("reference_geom_mode":"true","pname_modes":["vertex","instance"]})"),
        optionsRow<imp::OptionsNX>("OptionsNX", R"({"operation_type":"import","format_type":"NX","search_paths":"p",)"
                                                R"("assembly_path_pref":"subfolders_first","configuration_name":"c",)"
                                                R"("hidden_entities_mode":"none","suppressed_entities_mode":"all",)"
                                                R"("visu_pmi_mode":"none","pname_modes":["edge"]})"),
        optionsRow<imp::OptionsSolidWorks>(
            "OptionsSolidWorks",
            R"({"operation_type":"import","format_type":"SolidWorks","import_visualization":true,)"
            R"("import_root_visualization":true,"import_preview_graphics":true,"search_paths":"p",)"
            R"("assembly_path_pref":"subfolders_first","configuration_name":"c","hidden_entities_mode":"none",)"
            R"("suppressed_entities_mode":"all","product_structure_mode":"saved_visu_rep","visu_pmi_mode":"none",)"
            R"("pname_modes":["vertex","edge","face"]})"),
        optionsRow<imp::OptionsSolidWorksDrawing>("OptionsSolidWorksDrawing",
                                                  R"({"operation_type":"import","format_type":"SolidWorksDrawing"})"),
        optionsRow<imp::OptionsSolidEdge>("OptionsSolidEdge",
                                          R"({"operation_type":"import","format_type":"SolidEdge","search_paths":"p",)"
                                          R"("assembly_path_pref":"root_folder_first","hidden_entities_mode":"none",)"
                                          R"("pname_modes":["face"]})"),
        optionsRow<imp::OptionsJT>("OptionsJT", R"({"operation_type":"import","format_type":"JT",)"
                                                R"("edges_mode":"none","user_prop_mode":"translate_none"})"),
        optionsRow<imp::OptionsInventor>("OptionsInventor",
                                         R"({"operation_type":"import","format_type":"Inventor","search_paths":"p",)"
                                         R"("assembly_path_pref":"root_folder_only","hidden_entities_mode":"all",)"
                                         R"("suppressed_entities_mode":"none","active_state_mode":"active_only",)"
                                         R"("pname_modes":["unknown"]})"),
        optionsRow<imp::Options3DXML>("Options3DXML",
                                      R"({"operation_type":"import","format_type":"3D_XML","visu_pmi_mode":"none"})"),
        optionsRow<imp::OptionsXCGM>("OptionsXCGM",
                                     R"({"operation_type":"import","format_type":"XCGM","visu_pmi_mode":"none"})"),
    };
}

} // namespace test
