#include "tests/full_rows/full_rows.h"
#include "tests/full_rows/shared_texts.h"
#include "vrx_api/vrx_api_exchange_common.h"

using namespace vrx;

namespace test
{

std::vector<FullRow> commonRows()
{
    const char* const kNoVector = "Exchange vector/point (2D/3D) object should have a JSON array type.";
    return {
        fullRow<ExcVector2d>("ExcVector2d", "[1.5,2.5]").says(kNoVector),
        fullRow<ExcVector3d>("ExcVector3d", "[1.5,2.5,3.5]").says(kNoVector),
        fullRow<ExcMatrix3d>("ExcMatrix3d", "[[2.0,3.0,4.0],[5.0,6.0,7.0],[8.0,9.0,0.5]]").silent(),
        fullRow<ExcTransformation>("ExcTransformation", kTransformationText).silent(),
        fullRow<ExcColor>("ExcColor", kColorText).silent().governedBy({"rgb"}),
        fullRow<ExcMiscProperty>("ExcMiscProperty", R"({"name":"n","type":"integer","value":"1"})").silent(),
        fullRow<ExcMiscData>("ExcMiscData", kMiscDataText).silent(),
        fullRow<ExcSubentId>("ExcSubentId", kSubentIdText),
        fullRow<ExcFullSubentPath>("ExcFullSubentPath", kPathText),
        fullRow<ExcEntity>("ExcEntity of a path", kEntityText).governedBy({"type"}),
        fullRow<ExcEntity>("ExcEntity of an original", R"({"type":"original","description":"d","id":"i"})")
            .governedBy({"type"}),
    };
}

} // namespace test
