#include "tests/full_rows/full_rows.h"
#include "tests/full_rows/shared_texts.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_exchange_structure.h"

using namespace vrx;

namespace test
{

std::vector<FullRow> structureRows()
{
    const std::string reference =
        R"({"guid":"g","persistent_id":"p","persistent_name":"q","block_id":4294967296,"name":"n","transformation":)" +
        kTransformationText + R"(,"color":)" + kColorText + R"(,"hidden":true,"suppressed":true,"misc_data":)" +
        kMiscDataText + "}";
    const std::string block =
        R"({"id":18446744073709551615,"name":"n","storage_name":"s","world_orientation":"up_y","misc_data":)" +
        kMiscDataText + R"(,"is_part":true,"block_references":[)" + reference + "]}";
    const std::string structure = R"({"product_name":"p","product_configuration_name":"c","misc_data":)" +
                                  kMiscDataText + R"(,"units":"meter","world_orientation":"up_z","blocks":[)" + block +
                                  R"(],"root_block_references":[)" + reference + "]}";
    return {
        fullRow<ExcBlockReference>("ExcBlockReference", reference),
        fullRow<ExcBlock>("ExcBlock", block),
        fullRow<ExcProductStructure>("ExcProductStructure", structure),
        fullRow<LegacyComponentInstanceNames>("LegacyComponentInstanceNames",
                                              R"([{"component_handle":7,"component_name":"n"},)"
                                              R"({"component_handle":18446744073709551615,"component_name":""}])")
            .throws()
            .keeps({""}),
        fullRow<LegacyMaterialMap>("LegacyMaterialMap",
                                   R"([{"component_handle":42,"component_material":{"has_material":true,"name":"n",)"
                                   R"("density":7.85,"thermal_conductivity":50.0,"specific_heat":490.0}}])")
            .throws()
            .keeps({""}),
    };
}

} // namespace test
