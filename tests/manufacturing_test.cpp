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
    row<ExcMfgPatternRectangular>("RectangularTellsItsTypeWhateverItReads", R"({"type":"circular"})",
                                  rectangular().c_str()),
    row<ExcMfgPatternRectangular>("RectangularOfNumbersOfTheOtherKind",
                                  R"({"primary_inst_count":3.0,"secondary_inst_count":2147483648,"primary_spacing":1})",
                                  rectangular().c_str()),
    row<ExcMfgPatternRectangular>("RectangularOfANullBaseInstance", R"({"base_instance":null})",
                                  rectangular(R"(,"base_instance":{"is_base":false})").c_str(), {kNoInstance}),
    row<ExcMfgPatternRectangular>(
        "RectangularPairs",
        R"({"visible_instances":[[1,2,3],[1,2.5],["x",2147483648],[1],7,{},[]],"deactivated_instances":[[],[4,5]]})",
        rectangular({}, R"(,"visible_instances":[[1,2],[1,-1],[-1,-1]],"deactivated_instances":[[4,5]])").c_str(),
        {"[WARNING] ExcMfgPatternRectangular: invalid size of visible_instances array item (pair).",
         "[WARNING] ExcMfgPatternRectangular: invalid size of visible_instances array item (pair).",
         "[WARNING] ExcMfgPatternRectangular: invalid size of visible_instances array item (pair).",
         "[WARNING] ExcMfgPatternRectangular: invalid size of visible_instances array item (pair).",
         "[WARNING] ExcMfgPatternRectangular: invalid size of deactivated instances array item (pair)."}),
    row<ExcMfgPatternCircular>(
        "CircularPairs", R"({"visible_instances":[null,[-1,0]],"deactivated_instances":["12",[4]]})",
        circular(R"(,"visible_instances":[[-1,0]])").c_str(),
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
        {R"({"type":2})", std::nullopt, {"[ERROR] ExcMfgPattern should have a type."}},
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
    row<ExcMfgCounterSinkHole>(
        "CounterSinkHoleDefault", "{}",
        ("{" + kHoleValues + R"(,"diameter":0.0,"max_tol":0.0,"min_tol":0.0,"angle":0.0})").c_str()),
    row<ExcMfgSimpleHole>("HoleOfWrongKinds",
                          R"({"primary_depth":5,"bottom_limit_extent_type":1,"direction":{},"hole_thread":null})",
                          ("{" + kHoleValues + R"(,"hole_thread":)" + kHoleThread + "}").c_str(),
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

} // namespace
