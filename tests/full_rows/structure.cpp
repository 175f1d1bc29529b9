#include "tests/full_rows/full_rows.h"
#include "tests/full_rows/shared_texts.h"
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
    };
}

} // namespace test
