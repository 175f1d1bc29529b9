#include "tests/full_rows/full_rows.h"
#include "vrx_api/vrx_api_format_options.h"

using namespace vrx;

namespace test
{

std::vector<FullRow> formatOptionsRows()
{
    const FullRow::Keys identity = {"operation_type", "format_type"};
    return {
        fullRow<imp::OptionsIGES>("OptionsIGES", R"({"operation_type":"import","format_type":"IGES",)"
                                                 R"("import_entities":"root_only","hidden_entities_mode":"none"})")
            .fixes(identity)
            .loudAbout(identity),
        fullRow<imp::OptionsSTEP>("OptionsSTEP", R"({"operation_type":"import","format_type":"STEP",)"
                                                 R"("layer_name_mode":"saved_visu_rep","visu_pmi_mode":"none"})")
            .fixes(identity)
            .loudAbout(identity),
        fullRow<imp::OptionsJT>("OptionsJT", R"({"operation_type":"import","format_type":"JT",)"
                                             R"("edges_mode":"none","user_prop_mode":"translate_none"})")
            .fixes(identity)
            .loudAbout(identity),
        fullRow<imp::OptionsParasolid>("OptionsParasolid", R"({"operation_type":"import","format_type":"parasolid",)"
                                                           R"("hidden_entities_mode":"none"})")
            .fixes(identity)
            .loudAbout(identity),
    };
}

} // namespace test
