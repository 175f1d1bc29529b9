#include "tests/full_rows/full_rows.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <stdexcept>

using namespace vrx;

namespace test
{

namespace
{

// The row of a part, as its family has it.
FullRow rowOf(const std::string& title, std::vector<FullRow> (*family)())
{
    for (const FullRow& row : family())
    {
        if (row.title == title)
        {
            return row;
        }
    }
    throw std::logic_error("no row " + title);
}

} // namespace

std::vector<FullRow> blockMechanicalRows()
{
    const FullRow pmi = rowOf("ExcPMIData", pmiRows);
    const FullRow misc = rowOf("ExcMechanicalMiscData", mechanicalRows);
    const FullRow mapping = rowOf("ExcMappingData", mechanicalRows);
    const FullRow features = rowOf("ExcMfgData", manufacturingRows);
    const FullRow entities = rowOf("ExcEntityData", mechanicalRows);
    const auto block = [&](std::string FullRow::*text) {
        return R"({"block_id":18446744073709551615,"log_file":"l","pmi_data":)" + pmi.*text + R"(,"misc_data":)" +
               misc.*text + R"(,"mapping_data":)" + mapping.*text + R"(,"mfg_data":)" + features.*text +
               R"(,"entity_data":)" + entities.*text + "}";
    };
    const std::string original = rowOf("ExcEntity of an original", commonRows).in;
    const auto feature = [&](const std::string& pattern) {
        return R"({"id":"i","linked_elements":[)" + original + R"(],"name":"n","pattern":)" +
               rowOf(pattern, manufacturingRows).in + "}";
    };
    const std::string patterns = R"({"block_id":7,"mfg_data":{"has_data":true,"unclassified_features":[)" +
                                 feature("ExcMfgPatternCircular") + "," + feature("ExcMfgPatternUserDefined") + "]}}";
    return {
        fullRow<ExcBlockMechanicalData>("ExcBlockMechanicalData", block(&FullRow::in))
            .writes(block(&FullRow::out))
            .loudAbout({"mapping_data"})
            .nests({"pmi_data", "mapping_data", "entity_data"}),
        fullRow<ExcBlockMechanicalData>("ExcBlockMechanicalData of other patterns", patterns),
    };
}

} // namespace test
