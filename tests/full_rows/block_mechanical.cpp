#include "tests/full_rows/full_rows.h"
#include "tests/full_rows/shared_texts.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

using namespace vrx;

namespace test
{

std::vector<FullRow> blockMechanicalRows()
{
    const std::string block =
        R"({"block_id":18446744073709551615,"log_file":"l","pmi_data":[],"misc_data":{"misc_data":)" + kMiscDataText +
        R"(},"mapping_data":[{"imported":)" + kEntityText +
        R"(}],"mfg_data":{"has_data":true},"entity_data":[{"entity":)" + kEntityText +
        R"(,"name":"n","hidden":true,"line_type":"dot","line_thickness":0.5}]})";
    return {
        fullRow<ExcBlockMechanicalData>("ExcBlockMechanicalData", block)
            .loudAbout({"mapping_data"})
            .nests({"pmi_data", "mapping_data", "entity_data"}),
    };
}

} // namespace test
