#include "tests/full_rows/full_rows.h"
#include "vrx_api/geometry/block_geometry.h"

using namespace vrx;

namespace test
{

std::vector<FullRow> geometryRows()
{
    return {
        // Only an object whose buffer is open writes its name.
        fullRow<ExcBlockGeometry>(
            "ExcBlockGeometry",
            R"({"block_id":5,"shared_acis_buffer_name":"b","acis_body_ids":[7,18446744073709551615]})")
            .writes(R"({"block_id":5,"shared_acis_buffer_name":null,"acis_body_ids":[7,18446744073709551615]})")
            .fixes({"shared_acis_buffer_name"})
            .logs({"ExcBlockGeometry: ACIS buffer was not initialized in shared memory."})
            .loudAbout({"block_id", "shared_acis_buffer_name"}),
    };
}

} // namespace test
