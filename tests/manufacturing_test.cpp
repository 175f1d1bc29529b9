#include "tests/support/add_row.h"
#include "tests/support/enum_row.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <functional>
#include <optional>

using namespace vrx;
using test::addRow;
using test::enumRow;
using test::row;

namespace
{

class ManufacturingRows : public test::ModelRows
{
};

const char* const kNoInstance = "[ERROR] ExcMfgPattern::Instance object should have a JSON object type.";
const char* const kNoVector = "[ERROR] Exchange vector/point (2D/3D) object should have a JSON array type.";

std::string circular(const std::string& lists = {})
{
    return R"({"type":"circular","anchor_point":[0.0,0.0,0.0],"center_of_rotation":[0.0,0.0,0.0],)"
           R"("axis_of_rotation":[0.0,0.0,0.0],"axial_inst_count":0,"radial_inst_count":0,"axial_dist_degrees":0.0,)"
           R"("radial_dist":0.0,"fixed_rot_orient":false,"simplified":false)" +
           lists + "}";
}

std::string rectangular(const std::string& baseInstance = {}, const std::string& lists = {})
{
    return R"({"type":"rectangular","anchor_point":[0.0,0.0,0.0],"align_primary_dir":[0.0,0.0,0.0],)"
           R"("align_secondary_dir":[0.0,0.0,0.0],"primary_inst_count":0,"secondary_inst_count":0,)"
           R"("primary_spacing":0.0,"secondary_spacing":0.0)" +
           baseInstance + R"(,"simplified":false)" + lists + "}";
}

const test::ModelRow kPatterns[] = {
    row<ExcMfgPatternRectangular>("RectangularTellsItsTypeWhateverItReads", R"({"type":"circular"})", rectangular()),
    row<ExcMfgPatternRectangular>("RectangularOfNumbersOfTheOtherKind",
                                  R"({"primary_inst_count":3.0,"secondary_inst_count":2147483648,"primary_spacing":1})",
                                  rectangular()),
    row<ExcMfgPatternRectangular>("RectangularOfANullBaseInstance", R"({"base_instance":null})",
                                  rectangular(R"(,"base_instance":{"is_base":false})"), {kNoInstance}),
    row<ExcMfgPatternRectangular>(
        "RectangularPairs",
        R"({"visible_instances":[[1,2,3],[1,2.5],["x",2147483648],[1],7,{},[]],"deactivated_instances":[[],[4,5]]})",
        rectangular({}, R"(,"visible_instances":[[1,2],[1,-1],[-1,-1]],"deactivated_instances":[[4,5]])"),
        {"[WARNING] ExcMfgPatternRectangular: invalid size of visible_instances array item (pair).",
         "[WARNING] ExcMfgPatternRectangular: invalid size of visible_instances array item (pair).",
         "[WARNING] ExcMfgPatternRectangular: invalid size of visible_instances array item (pair).",
         "[WARNING] ExcMfgPatternRectangular: invalid size of visible_instances array item (pair).",
         "[WARNING] ExcMfgPatternRectangular: invalid size of deactivated instances array item (pair)."}),
    row<ExcMfgPatternCircular>(
        "CircularPairs", R"({"visible_instances":[null,[-1,0]],"deactivated_instances":["12",[4]]})",
        circular(R"(,"visible_instances":[[-1,0]])"),
        {"[WARNING] ExcMfgPatternCircular: invalid size of visible_instances array item (pair).",
         "[WARNING] ExcMfgPatternCircular: invalid size of deactivated_instances array item (pair).",
         "[WARNING] ExcMfgPatternCircular: invalid size of deactivated_instances array item (pair)."}),
    row<ExcMfgPatternUserDefined>(
        "UserDefinedKeepsThePlaceOfAWrongPosition", R"({"instance_positions":[{},[1.0,2.0,3.0]]})",
        R"({"type":"user_defined","anchor_point":[0.0,0.0,0.0],"instance_positions":[[0.0,0.0,0.0],[1.0,2.0,3.0]]})",
        {kNoVector}),
};

TEST_P(ManufacturingRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Patterns, ManufacturingRows, testing::ValuesIn(kPatterns), ManufacturingRows::nameOf);

TEST(MfgPattern, IsMadeByItsType)
{
    const struct
    {
        const char* text;
        std::optional<int> type;
        std::vector<std::string> log;
    } cases[] = {
        {R"({"type":"rectangular"})", 2, {}},
        {R"({"type":"circular"})", 3, {}},
        {R"({"type":"user_defined"})", 4, {}},
        {R"({"type":"Rectangular"})", 3, {}},
        {R"({"type":""})", 3, {}},
        {R"({"type":"none"})", std::nullopt, {}},
        {R"({"type":"unknown"})", std::nullopt, {"[ERROR] ExcMfgPattern: unknown type."}},
        {R"({"type":2,"type":"circular"})", std::nullopt, {"[ERROR] ExcMfgPattern should have a type."}},
        {"{}", std::nullopt, {"[ERROR] ExcMfgPattern should have a type."}},
        {R"(["type"])", std::nullopt, {"[ERROR] ExcMfgPattern object should have a JSON object type."}},
    };
    for (const auto& one : cases)
    {
        const test::LogCapture log;
        const auto pattern = ExcMfgPattern::readPattern(test::parsed(one.text));
        EXPECT_EQ(pattern == nullptr ? std::nullopt : std::optional(static_cast<int>(pattern->type())), one.type)
            << one.text;
        EXPECT_EQ(log.complaints(), one.log) << one.text;
    }
}

TEST(MfgPattern, IsReadWholeByItsType)
{
    const std::string text = circular(R"(,"visible_instances":[[1,2]])");
    EXPECT_EQ(test::written(*ExcMfgPattern::readPattern(test::parsed(text))), text);
}

TEST(MfgPattern, LeavesTheMembersOfAnObjectThatItIsWrittenTo)
{
    ExcMfgPatternUserDefined pattern;
    pattern.addInstancePosition({1.0, 2.0, 3.0});
    JsonDocument document = test::parsed(R"({"a":1})");
    pattern.writeObject(document, document.GetAllocator());
    EXPECT_EQ(test::textOf(document), R"({"a":1,"type":"user_defined","anchor_point":[0.0,0.0,0.0],)"
                                      R"("instance_positions":[[1.0,2.0,3.0]]})");
}

class ManufacturingAdds : public test::AddRows
{
};

const test::AddRow kPatternAdds[] = {
    addRow("ExcMfgPattern::Instance::addLimiting", &ExcMfgPattern::Instance::addLimiting,
           "ExcMfgPattern::Instance: attempt to add null Limiting Entity object."),
    addRow("ExcMfgPattern::Instance::addDefining", &ExcMfgPattern::Instance::addDefining,
           "ExcMfgPattern::Instance: attempt to add null Defining Entity object."),
};

TEST_P(ManufacturingAdds, RefuseNull)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Patterns, ManufacturingAdds, testing::ValuesIn(kPatternAdds), ManufacturingAdds::nameOf);

const std::string kHoleValues =
    R"("name":"","primary_diameter":0.0,"primary_diameter_max_tol":0.0,"primary_diameter_min_tol":0.0,)"
    R"("primary_depth":0.0,"tip_angle_degrees":0.0,"bottom_limit_extent_type":"unknown","center":[0.0,0.0,0.0],)"
    R"("direction":[0.0,0.0,0.0])";
const std::string kHoleThread = R"({"diameter":0.0,"depth":0.0,"pitch":0.0,"orientation":"unknown","designation":"",)"
                                R"("designation_system_type":"unknown","standart":"","min_tol":0.0,"max_tol":0.0})";

const test::ModelRow kHoles[] = {
    row<ExcMfgCounterSinkHole>("CounterSinkHoleDefault", "{}",
                               "{" + kHoleValues + R"(,"diameter":0.0,"max_tol":0.0,"min_tol":0.0,"angle":0.0})"),
    row<ExcMfgSimpleHole>("HoleOfWrongKinds",
                          R"({"primary_depth":5,"bottom_limit_extent_type":1,"direction":{},"hole_thread":null})",
                          "{" + kHoleValues + R"(,"hole_thread":)" + kHoleThread + "}",
                          {kNoVector, "[ERROR] ExcMfgHoleThread object should have a JSON object type."}),
};
INSTANTIATE_TEST_SUITE_P(Holes, ManufacturingRows, testing::ValuesIn(kHoles), ManufacturingRows::nameOf);

class ManufacturingEnums : public test::EnumRows
{
};

const test::EnumRow kHoleEnums[] = {
    enumRow("ExcMfgThreading::EOrientation", "orientation", &ExcMfgThreading::orientation,
            &ExcMfgThreading::setOrientation, {"unknown", "right_handed", "left_handed"}, "left_handed"),
    enumRow("ExcMfgThreading::EDesignationSystemType", "designation_system_type",
            &ExcMfgThreading::designationSystemType, &ExcMfgThreading::setDesignationSystemType,
            {"unknown", "metric", "american", "british"}, "american"),
    enumRow("ExcMfgThread::EBottomType", "bottom_type", &ExcMfgThread::bottomType, &ExcMfgThread::setBottomType,
            {"unknown", "dimension", "support_depth", "support_up_to_plane"}, "dimension"),
    enumRow<ExcMfgSimpleHole>("ExcMfgHole::EBottomLimitExtentType", "bottom_limit_extent_type",
                              &ExcMfgHole::bottomLimitExtentType, &ExcMfgHole::setBottomLimitExtentType,
                              {"unknown", "blind", "up_to_last", "up_to_plane", "up_to_surface", "up_to_next"},
                              "blind"),
};

TEST_P(ManufacturingEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Holes, ManufacturingEnums, testing::ValuesIn(kHoleEnums), ManufacturingEnums::nameOf);

template <class T, class C>
void expectUnderKey(const std::string& key, double (C::*getter)() const, void (C::*setter)(double))
{
    T object;
    std::invoke(setter, object, 2.5);
    EXPECT_EQ(std::invoke(getter, object), 2.5) << key;
    EXPECT_NE(test::written(object).find("\"" + key + R"(":2.5)"), std::string::npos) << key;
}

TEST(MfgHole, KeepsTolerancesAndAnglesApart)
{
    expectUnderKey<ExcMfgHoleThread>("min_tol", &ExcMfgHoleThread::minimalTolerance,
                                     &ExcMfgHoleThread::setMinimalTolerance);
    expectUnderKey<ExcMfgHoleThread>("max_tol", &ExcMfgHoleThread::maximalTolerance,
                                     &ExcMfgHoleThread::setMaximalTolerance);
    expectUnderKey<ExcMfgSimpleHole>("primary_diameter_min_tol", &ExcMfgHole::primaryDiameterMinTol,
                                     &ExcMfgHole::setPrimaryDiameterMinTol);
    expectUnderKey<ExcMfgSimpleHole>("primary_diameter_max_tol", &ExcMfgHole::primaryDiameterMaxTol,
                                     &ExcMfgHole::setPrimaryDiameterMaxTol);
    expectUnderKey<ExcMfgCounterBoreHole>("min_tol", &ExcMfgCounterBoreHole::minimumTolerance,
                                          &ExcMfgCounterBoreHole::setMinimumTolerance);
    expectUnderKey<ExcMfgCounterBoreHole>("max_tol", &ExcMfgCounterBoreHole::maximumTolerance,
                                          &ExcMfgCounterBoreHole::setMaximumTolerance);
    expectUnderKey<ExcMfgCounterSinkHole>("min_tol", &ExcMfgCounterSinkHole::minimumTolerance,
                                          &ExcMfgCounterSinkHole::setMinimumTolerance);
    expectUnderKey<ExcMfgCounterSinkHole>("max_tol", &ExcMfgCounterSinkHole::maximumTolerance,
                                          &ExcMfgCounterSinkHole::setMaximumTolerance);
    expectUnderKey<ExcMfgCounterSinkHole>("angle", &ExcMfgCounterSinkHole::taperAngle,
                                          &ExcMfgCounterSinkHole::setTaperAngle);
    expectUnderKey<ExcMfgCounterDrillHole>("min_tol", &ExcMfgCounterDrillHole::minimumTolerance,
                                           &ExcMfgCounterDrillHole::setMinimumTolerance);
    expectUnderKey<ExcMfgCounterDrillHole>("max_tol", &ExcMfgCounterDrillHole::maximumTolerance,
                                           &ExcMfgCounterDrillHole::setMaximumTolerance);
    expectUnderKey<ExcMfgCounterDrillHole>("angle", &ExcMfgCounterDrillHole::taperAngle,
                                           &ExcMfgCounterDrillHole::setTaperAngle);
}

using TaperHole = ExcMfgFeatureHoleType<ExcMfgTaperHole>;

const char* const kFeature = R"({"id":"","name":""})";
const char* const kNoFlag = R"({"has_data":false})";

const test::ModelRow kFeatures[] = {
    row<TaperHole>("HoleTakesNothingFromTheFeature",
                   R"({"id":"i","name":"n","linked_elements":[{}],"pattern":{"type":"circular"},"hole_data":null})",
                   "{\"hole_data\":{" + kHoleValues + R"(,"angle":0.0}})",
                   {"[ERROR] ExcMfgTaperHole object should have a JSON object type."}),
    row<ExcMfgFeatureUnclassified>("FeatureOfThePatternNone", R"({"pattern":{"type":"none"}})", kFeature),
    row<ExcMfgFeatureUnclassified>("FeatureOfAnUnknownPattern", R"({"name":"n","pattern":{"type":"unknown"}})",
                                   R"({"id":"","name":"n"})", {"[ERROR] ExcMfgPattern: unknown type."}),
    row<ExcMfgFeatureUnclassified>("FeatureOfANullPattern", R"({"pattern":null})", kFeature,
                                   {"[ERROR] ExcMfgPattern object should have a JSON object type."}),
    row<ExcMfgData>("DataWithoutAFlag", R"({"simple_holes":[{}]})", kNoFlag),
    row<ExcMfgData>("DataOfAFlagOfAnotherKind", R"({"has_data":1,"simple_holes":[{}]})", kNoFlag),
    row<ExcMfgData>("DataKeepsItsLengths",
                    R"({"has_data":true,"simple_holes":[0,{}],"taper_holes":{},"external_threads":[null],)"
                    R"("unclassified_features":[[]]})",
                    R"({"has_data":true,"simple_holes":[{},{}],"external_threads":[{"id":"","name":""}],)"
                    R"("unclassified_features":[{"id":"","name":""}]})",
                    {"[ERROR] ExcMfgFeatureHoleType object should have a JSON object type.",
                     "[ERROR] ExcMfgFeatureThread object should have a JSON object type.",
                     "[ERROR] ExcMfgFeature object should have a JSON object type."}),
};
INSTANTIATE_TEST_SUITE_P(Features, ManufacturingRows, testing::ValuesIn(kFeatures), ManufacturingRows::nameOf);

TEST(MfgFeature, LosesItsPatternToOneThatCannotBeRead)
{
    ExcMfgFeatureUnclassified feature;
    feature.setPattern(std::make_shared<ExcMfgPatternCircular>());
    test::readText(feature, R"({"pattern":{"type":"none"}})");
    EXPECT_EQ(feature.pattern(), nullptr);

    feature.setPattern(std::make_shared<ExcMfgPatternCircular>());
    test::readText(feature, "{}");
    EXPECT_NE(feature.pattern(), nullptr);
}

TEST(MfgFeature, DoesNotWriteTheMembersOfAHole)
{
    TaperHole hole;
    hole.setId(WIDE("i"));
    hole.setName(WIDE("n"));
    hole.addLinkedElement(std::make_shared<ExcEntity>());
    hole.setPattern(std::make_shared<ExcMfgPatternCircular>());
    EXPECT_EQ(test::written(hole), "{}");
    EXPECT_EQ(hole.name(), WIDE("n"));
}

TEST(MfgData, IsGovernedByItsFlag)
{
    ExcMfgData data;
    data.addSimpleHole(std::make_shared<ExcMfgFeatureHoleType<ExcMfgSimpleHole>>());
    EXPECT_EQ(test::written(data), kNoFlag);
    data.setHasData(true);
    EXPECT_EQ(test::written(data), R"({"has_data":true,"simple_holes":[{}]})");

    // A flag that is there already lets a reader in.
    test::readText(data, R"({"has_data":null,"simple_holes":[{}]})");
    EXPECT_EQ(data.simpleHoles().size(), 2U);
    test::readText(data, R"({"simple_holes":[{}],"has_data":false})");
    EXPECT_EQ(data.simpleHoles().size(), 2U);
}

TEST(MfgData, TellsTheKindOfAThreadByItsList)
{
    const auto data = test::readFrom<ExcMfgData>(
        R"({"has_data":true,"internal_threads":[{}],"external_threads":[{"name":"a"},{"name":"b"}]})");
    EXPECT_EQ(data.internalThreads().size(), 1U);
    EXPECT_EQ(data.externalThreads().size(), 2U);
}

const test::AddRow kFeatureAdds[] = {
    addRow<ExcMfgFeatureUnclassified>("ExcMfgObject::addLinkedElement", &ExcMfgObject::addLinkedElement,
                                      "ExcMfgObject: attempt to add null Linked Element object."),
    addRow<TaperHole>("ExcMfgFeatureHole::addLimitingGeometry", &ExcMfgFeatureHole::addLimitingGeometry,
                      "ExcMfgFeatureHole: attempt to add null Limiting Geometry Entity object."),
    addRow<TaperHole>("ExcMfgFeatureHole::addDefiningGeometry", &ExcMfgFeatureHole::addDefiningGeometry,
                      "ExcMfgFeatureHole: attempt to add null Defining Geometry Entity object."),
    addRow<ExcMfgFeatureInternalThread>("ExcMfgFeatureThread::addSideFace", &ExcMfgFeatureThread::addSideFace,
                                        "ExcMfgFeatureThread: attempt to add null Side Face Entity object.",
                                        &ExcMfgFeatureThread::sideFaces),
    addRow<ExcMfgFeatureInternalThread>("ExcMfgFeatureThread::addTopFace", &ExcMfgFeatureThread::addTopFace,
                                        "ExcMfgFeatureThread: attempt to add null Top Face Entity object.",
                                        &ExcMfgFeatureThread::topFaces),
    addRow<ExcMfgFeatureInternalThread>("ExcMfgFeatureThread::addBottomFace", &ExcMfgFeatureThread::addBottomFace,
                                        "ExcMfgFeatureThread: attempt to add null Bottom Face Entity object.",
                                        &ExcMfgFeatureThread::bottomFaces),
    addRow("ExcMfgData::addSimpleHole", &ExcMfgData::addSimpleHole,
           "ExcMfgData: attempt to add null Simple Hole object.", &ExcMfgData::simpleHoles),
    addRow("ExcMfgData::addTaperHole", &ExcMfgData::addTaperHole, "ExcMfgData: attempt to add null Taper Hole object.",
           &ExcMfgData::taperHoles),
    addRow("ExcMfgData::addCounterBoreHole", &ExcMfgData::addCounterBoreHole,
           "ExcMfgData: attempt to add null Counter Bore Hole object.", &ExcMfgData::counterBoreHoles),
    addRow("ExcMfgData::addCounterSinkHole", &ExcMfgData::addCounterSinkHole,
           "ExcMfgData: attempt to add null Counter Sink Hole object.", &ExcMfgData::counterSinkHoles),
    addRow("ExcMfgData::addCounterDrillHole", &ExcMfgData::addCounterDrillHole,
           "ExcMfgData: attempt to add null Counter Drill Hole object.", &ExcMfgData::counterDrillHoles),
    addRow("ExcMfgData::addInternalThread", &ExcMfgData::addInternalThread,
           "ExcMfgData: attempt to add null Internal Thread object.", &ExcMfgData::internalThreads),
    addRow("ExcMfgData::addExternalThread", &ExcMfgData::addExternalThread,
           "ExcMfgData: attempt to add null External thread object.", &ExcMfgData::externalThreads),
    addRow("ExcMfgData::addUnclassifiedFeature", &ExcMfgData::addUnclassifiedFeature,
           "ExcMfgData: attempt to add null Unclassified Feature object.", &ExcMfgData::unclassifiedFeatures),
};
INSTANTIATE_TEST_SUITE_P(Features, ManufacturingAdds, testing::ValuesIn(kFeatureAdds), ManufacturingAdds::nameOf);

} // namespace
