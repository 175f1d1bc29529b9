#include "tests/full_rows/full_rows.h"
#include "vrx_api/exchange/stage_finished.h"
#include "vrx_api/vrx_api_exchange_object.h"

using namespace vrx;

namespace test
{

std::vector<FullRow> statusRows()
{
    return {
        fullRow<ExcStageFinished>("ExcStageFinished", R"("visualization")").silent(),
        fullRow<ExcMessage>("ExcMessage", R"({"message":"m"})").silent(),
        fullRow<ExcLog>("ExcLog", R"({"message":"m"})").silent(),
        fullRow<ExcProgress>("ExcProgress", R"({"progress":3,"progress_max":7,"stage":"s"})").silent(),
    };
}

} // namespace test
