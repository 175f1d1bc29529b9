#include "tests/frozen/frozen_files.h"
#include "tests/support/bodies.h"
#include "tests/support/json_text.h"
#include "tests/support/shared_memory.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <gtest/gtest.h>

using namespace vrx;

namespace
{

// What stands in the shared memory of a block's bodies is the kernel's saved form, plain or compressed.
TEST(FrozenBodies, Stay)
{
    const std::filesystem::path folder = VRX_API_FROZEN_DATA;
    const std::string plain = test::contentOf(folder / "exc_block_geometry.acis");
    for (const std::string& frozen : {plain, test::contentOf(folder / "exc_block_geometry.acis.gz")})
    {
        JsonDocument document = test::treeOfUtf8(test::contentOf(folder / "exc_block_geometry.json"));
        const wstring name = test::leaveBuffer(frozen);
        document[WIDE("shared_acis_buffer_name")].SetString(name.c_str(), document.GetAllocator());
        ExcBlockGeometry geometry;
        geometry.readObject(document);
        geometry.load();
        test::Bodies bodies;
        std::vector<std::uint64_t> ids;
        ASSERT_TRUE(geometry.getGeometry(bodies.list(), ids));
        EXPECT_EQ(bodies.describe(), "first 6 12 8\nsecond 6 12 8\n");
        EXPECT_TRUE(test::saved(bodies.list()) == plain);
    }
}

} // namespace
