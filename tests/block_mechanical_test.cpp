#include "tests/support/envelope.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

using namespace vrx;
using test::row;

namespace
{

const test::ModelRow kRows[] = {
    row<ExcBlockMechanicalData>("BlockMechanicalDefault", "{}", R"({"block_id":0})"),
    row<ExcBlockMechanicalData>(
        "BlockMechanicalPointsAtWhatIsOfAnotherKind",
        R"({"pmi_data":{},"misc_data":null,"mapping_data":1,"mfg_data":[],"entity_data":"x","log_file":2})",
        R"({"block_id":0,"pmi_data":[],"misc_data":{"misc_data":[]},"mapping_data":[],)"
        R"("mfg_data":{"has_data":false},"entity_data":[]})",
        {"[ERROR] ExcPMIData object should have a JSON array type.",
         "[ERROR] ExcMechanicalMiscData object should have a JSON object type.",
         "[ERROR] ExcMappingData object should have a JSON array type.",
         "[ERROR] ExcMfgData object should have a JSON object type.",
         "[ERROR] ExcEntityData object should have a JSON array type."}),
};

class BlockMechanicalRows : public test::ModelRows
{
};

TEST_P(BlockMechanicalRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Mechanical, BlockMechanicalRows, testing::ValuesIn(kRows), BlockMechanicalRows::nameOf);

TEST(BlockMechanicalData, SharesItsDataWithACopyUntilOneReads)
{
    auto block = test::readFrom<ExcBlockMechanicalData>(R"({"misc_data":{"layers":[{}]},"entity_data":[{}]})");
    const ExcBlockMechanicalData copy = block;
    EXPECT_EQ(copy.miscData(), block.miscData());
    test::readText(block, R"({"misc_data":{},"entity_data":[{}]})");
    EXPECT_TRUE(block.miscData()->layers().empty());
    EXPECT_EQ(block.entityData()->data().size(), 1U);
    EXPECT_EQ(copy.miscData()->layers().size(), 1U);
}

TEST(BlockMechanicalData, CrossesInItsEnvelope)
{
    const auto sent = std::make_shared<ExcBlockMechanicalData>();
    sent->setBlockId(7);
    sent->setMiscData(std::make_shared<ExcMechanicalMiscData>());
    sent->miscData()->addLayer(std::make_shared<ExcMiscLayer>());
    EXPECT_TRUE(sent->binary());
    EXPECT_TRUE(sent->compress());
    EXPECT_EQ(test::written(*sent->clone()), R"({"block_id":0})");

    const auto received = test::opened(test::envelopeOf(sent));
    ASSERT_NE(received, nullptr);
    EXPECT_EQ(received->objectName(), WIDE("exc_block_mechanical_data"));
    EXPECT_EQ(test::written(*received), test::written(*sent));
}

} // namespace
