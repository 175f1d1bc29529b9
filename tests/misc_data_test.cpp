#include "tests/support/add_row.h"
#include "tests/support/enum_row.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

using namespace vrx;
using test::addRow;
using test::enumRow;
using test::row;

namespace
{

const char* const kInformation = R"({"name":"","hidden":false,"line_type":"unknown","line_thickness":0.0})";
const std::string kTwoInformations =
    R"([{"name":"n","hidden":false,"line_type":"unknown","line_thickness":0.0},)" + std::string(kInformation) + "]";
const char* const kNoEntity = "[ERROR] ExcEntity object should have a JSON object type.";
const char* const kNoPair = "[ERROR] ExcMappingData JSON array should have objects as items.";

const test::ModelRow kRows[] = {
    row<ExcMechanicalMiscData>("MiscDataDefault", "{}", R"({"misc_data":[]})"),
    row<ExcMiscLayerFilter>("FilterPassesOverWhatIsNoLayerId", R"({"layer_id":[1,"x",2.0,4294967296,2]})",
                            R"({"name":"","type":"all","current":false,"layer_id":[1,2]})"),
    row<ExcMiscSymmetry>("SymmetryOfNoEntity", R"({"transformation":{"translation":[1.0]}})",
                         R"({"transform_mode":"none","transformation":{"affine":[[1.0,0.0,0.0],[0.0,1.0,0.0],)"
                         R"([0.0,0.0,1.0]],"translation":[1.0,0.0,0.0]}})"),

    row<ExcTopologicalEntityInformation>("InformationDefault", "{}", kInformation),
    row<ExcTopologicalEntityInformation>(
        "InformationPassesOverWhatIsNoName", R"({"pnames":["b",1,"a",null,"b"]})",
        R"({"pnames":["b","a","b"],"name":"","hidden":false,"line_type":"unknown","line_thickness":0.0})"),
    row<ExcEntityData>("EntityDataDefault", "[]", "[]"),
    row<ExcEntityData>("EntityDataKeepsItsLength", R"([{"name":"n"},5])", kTwoInformations,
                       {"[ERROR] ExcTopologicalEntityInformation object should have a JSON object type."}),

    row<ExcMappingData>("MappingDefault", "[]", "[]"),
    row<ExcMappingData>("MappingPassesOverWhatIsNoPair",
                        R"([[],{"imported":{"type":"visu","id":"a"}},null,{"original":{"type":"visu","id":"b"}},{}])",
                        R"([{"imported":{"type":"visu","id":"a"}},{},{}])", {kNoPair, kNoPair}),
    row<ExcMappingData>("MappingOfAnEntityOfAnotherKind", R"([{"imported":null}])",
                        R"([{"imported":{"type":"unknown"}}])", {kNoEntity}),
};

class MiscDataRows : public test::ModelRows
{
};

TEST_P(MiscDataRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Mechanical, MiscDataRows, testing::ValuesIn(kRows), MiscDataRows::nameOf);

const test::EnumRow kEnums[] = {
    enumRow("ExcMiscLayerFilter::EType", "type", &ExcMiscLayerFilter::type, &ExcMiscLayerFilter::setType,
            {"all", "laycur", "other"}, "all"),
    enumRow("ExcMiscSymmetry::ETransformMode", "transform_mode", &ExcMiscSymmetry::transformMode,
            &ExcMiscSymmetry::setTransformMode, {"none", "opposite", "both"}, "both"),
    enumRow("ExcTopologicalEntityInformation::ELineType", "line_type", &ExcTopologicalEntityInformation::lineType,
            &ExcTopologicalEntityInformation::setLineType,
            {"unknown",
             "solid",
             "dash",
             "dot",
             "dash_dot",
             "dash_dot_dot",
             "dash_dot_dot_dot",
             "dash_dash_dot",
             "dash_dash_dot_dot",
             "dash_dash_dot_dot_dot",
             "short_dash",
             "long_dash",
             "medium_dash_long_dash",
             "medium_dash_short_dash_short_dash",
             "long_dash_short_dash",
             "long_dash_short_dash_short_dash",
             "long_dash_dot_dot",
             "long_dash_dot",
             "medium_dash_dot_short_dash_dot",
             "sparse_dot",
             "visible_invisible",
             "zigzag",
             "curve_batting",
             "fence_circle",
             "fence_square",
             "supply_line_gas",
             "supply_line_hot_water",
             "tracks"},
            "curve_batting"),
};

class MiscDataEnums : public test::EnumRows
{
};

TEST_P(MiscDataEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Mechanical, MiscDataEnums, testing::ValuesIn(kEnums), MiscDataEnums::nameOf);

using Data = ExcMechanicalMiscData;
using Mapping = ExcMappingData;
const char* const kNullPair = "ExcMappingData: attempt to add null Entity object or null Original Entity object.";

const test::AddRow kAdds[] = {
    addRow("ExcMechanicalMiscData::addWorldCoordinateSystem", &Data::addWorldCoordinateSystem,
           "ExcMechanicalMiscData: attempt to add null WCS object."),
    addRow("ExcMechanicalMiscData::addLayer", &Data::addLayer,
           "ExcMechanicalMiscData: attempt to add null Layer object."),
    addRow("ExcMechanicalMiscData::addLayerFilter", &Data::addLayerFilter,
           "ExcMechanicalMiscData: attempt to add null Layer Filter object."),
    addRow("ExcMechanicalMiscData::addMaterial", &Data::addMaterial,
           "ExcMechanicalMiscData: attempt to add null Material object."),
    addRow("ExcMechanicalMiscData::addNoteParameters", &Data::addNoteParameters,
           "ExcMechanicalMiscData: attempt to add null Note Parameters object."),
    addRow("ExcMechanicalMiscData::addSymmetry", &Data::addSymmetry,
           "ExcMechanicalMiscData: attempt to add null Symmetry object."),
    addRow("ExcMechanicalMiscData::addDisplaySet", &Data::addDisplaySet,
           "ExcMechanicalMiscData: attempt to add null Display Set object."),
    addRow("ExcMiscLayer::addEntity", &ExcMiscLayer::addEntity, "ExcMiscLayer: attempt to add null Entity object."),
    addRow("ExcMiscDisplaySet::addEntity", &ExcMiscDisplaySet::addEntity,
           "ExcMiscDisplaySet: attempt to add null Entity object."),
    addRow("ExcEntityData::addData", &ExcEntityData::addData,
           "ExcEntityData: attempt to add null Topological Entity Information Data object."),
    addRow<Mapping, ExcEntity>(
        "ExcMappingData::add of an imported entity",
        [](Mapping& mapping, const auto& imported) { mapping.add(imported, std::make_shared<ExcEntity>()); },
        kNullPair),
    addRow<Mapping, ExcEntity>(
        "ExcMappingData::add of an original entity",
        [](Mapping& mapping, const auto& original) { mapping.add(std::make_shared<ExcEntity>(), original); },
        kNullPair),
};

class MiscDataAdds : public test::AddRows
{
};

TEST_P(MiscDataAdds, RefuseNulls)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Mechanical, MiscDataAdds, testing::ValuesIn(kAdds), MiscDataAdds::nameOf);

TEST(MappingData, TakesTheOriginalAndDoesNotSendItOn)
{
    const auto mapping = test::readFrom<ExcMappingData>(
        R"([{"imported":{"type":"visu","id":"a"},"original":{"type":"original","id":"b"}},{"original":{"id":"c"}}])");
    ASSERT_EQ(mapping.mapping().size(), 2U);
    EXPECT_EQ(mapping.mapping()[0].first->id(), WIDE("a"));
    EXPECT_EQ(mapping.mapping()[0].second->id(), WIDE("b"));
    EXPECT_EQ(mapping.mapping()[1].first, nullptr);
    EXPECT_EQ(mapping.mapping()[1].second->id(), WIDE("c"));

    const auto received = test::readFrom<ExcMappingData>(test::written(mapping));
    ASSERT_EQ(received.mapping().size(), 2U);
    EXPECT_EQ(received.mapping()[0].first->id(), WIDE("a"));
    EXPECT_EQ(received.mapping()[0].second, nullptr);
    EXPECT_EQ(received.mapping()[1].first, nullptr);
}

} // namespace
