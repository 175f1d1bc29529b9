#include "tests/support/enum_row.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <utility>

using namespace vrx;
using test::enumRow;
using test::row;

namespace
{

/// A dimension whose arrays are filled by their setters.
class FilledDimension : public ExcPMIDimension
{
public:
    FilledDimension()
    {
        setNumericalToleranceLower(-1.5);
        setNumericalToleranceUpper(2.5);
        setAlphanumericalToleranceLower(WIDE("low"));
        setAlphanumericalToleranceUpper(WIDE("up"));
        setPrefix(WIDE("p"));
        setSuffix(WIDE("s"));
        setBefore(WIDE("b"));
        setAfter(WIDE("a"));
        setUpper(WIDE("u"));
        setLower(WIDE("l"));
        setBelow(WIDE("w"));
        setFakeNumericalValue(3.5);
        setFakeAlphanumericalValue(WIDE("f"));
        setLineStart(ExcVector2d(1.0, 2.0));
        setLineEnd(ExcVector2d(3.0, 4.0));
        setArrowSymbolStart(EArrowSymbol::Dot);
        setArrowSymbolEnd(EArrowSymbol::Plus);
    }
};

using Keys = std::vector<std::pair<std::string, std::string>>;

const Keys kDefaults = {
    {"numerical_tolerance", "[0.0,0.0]"},   {"alphanumerical_tolerance", R"(["",""])"},
    {"texts", R"(["","","","","","",""])"}, {"fake_numerical_value", ""},
    {"fake_alphanumerical_value", ""},      {"is_driving", "false"},
    {"line", "[[0.0,0.0],[0.0,0.0]]"},      {"arrows", R"(["not_used","not_used"])"},
    {"is_symbol_outside", "false"},
};
const Keys kFilled = {
    {"numerical_tolerance", "[-1.5,2.5]"},
    {"alphanumerical_tolerance", R"(["low","up"])"},
    {"texts", R"(["p","s","b","a","u","l","w"])"},
    {"fake_numerical_value", ""},
    {"fake_alphanumerical_value", ""},
    {"is_driving", "false"},
    {"line", "[[1.0,2.0],[3.0,4.0]]"},
    {"arrows", R"(["dot","plus"])"},
    {"is_symbol_outside", "false"},
};

// The text of a dimension with these keys, one of which has another value. A key without a value is not written.
std::string dimension(const Keys& keys, const std::string& changedKey = "", const std::string& changed = "")
{
    std::string text =
        R"({"type":"dimension","position":[0.0,0.0],"orientation":"horizontal","z_depth":0.0,"linked_elements":[],)"
        R"("leaders":[],"main_type":"unknown","sub_type":"no_dim","coord":[0.0,0.0,0.0],"value":0.0,"unit":"none",)"
        R"("value_precision":0.0,"tolerance_precision_value":0.0)";
    for (const auto& [key, value] : keys)
    {
        const std::string& written = key == changedKey ? changed : value;
        if (!written.empty())
        {
            text.append(",\"").append(key).append("\":").append(written);
        }
    }
    return text + "}";
}

// What becomes of a filled dimension that reads one key.
test::ModelRow filledRow(const char* name, const std::string& key, const std::string& in, const std::string& out,
                         std::vector<std::string> log = {})
{
    return row<FilledDimension>(name, "{\"" + key + "\":" + in + "}", dimension(kFilled, key, out), std::move(log));
}

// The same for one that says that the size of an array is wrong, and keeps what it has.
test::ModelRow wrongSizeRow(const char* name, const std::string& key, const std::string& in)
{
    return row<FilledDimension>(name, "{\"" + key + "\":" + in + "}", dimension(kFilled),
                                {"[WARNING] ExcPMIDimension: invalid size of " + key + " array."});
}

const test::ModelRow kRows[] = {
    row<ExcPMIDimension>("Default", "{}", dimension(kDefaults)),
    row<FilledDimension>("Filled", "{}", dimension(kFilled)),

    filledRow("ToleranceLowerFirst", "numerical_tolerance", "[0.1,0.2]", "[0.1,0.2]"),
    filledRow("ToleranceOfAnIntegerIsReset", "numerical_tolerance", "[0.1,2]", "[0.1,0.0]"),
    wrongSizeRow("ToleranceOfOne", "numerical_tolerance", "[0.1]"),
    filledRow("FitOfANumberIsReset", "alphanumerical_tolerance", R"([7,"H7"])", R"(["","H7"])"),
    wrongSizeRow("FitOfThree", "alphanumerical_tolerance", R"(["a","b","c"])"),
    filledRow("TextOfANumberIsReset", "texts", R"(["1","2","3",4,"5","6","7"])", R"(["1","2","3","","5","6","7"])"),
    wrongSizeRow("TextsOfSix", "texts", R"(["1","2","3","4","5","6"])"),
    filledRow("PointOfAWrongKindIsKept", "line", "[5,[7.0,8.0]]", "[[1.0,2.0],[7.0,8.0]]",
              {"[ERROR] Exchange vector/point (2D/3D) object should have a JSON array type."}),
    wrongSizeRow("LineOfNothing", "line", "[]"),
    filledRow("ArrowsGoIntoTheStart", "arrows", R"(["cross","wave"])", R"(["wave","plus"])"),
    filledRow("FirstArrowStaysForWantOfASecond", "arrows", R"(["cross",7])", R"(["cross","plus"])"),
    filledRow("ArrowsOfOtherKindsAreKept", "arrows", "[7,null]", R"(["dot","plus"])"),
    wrongSizeRow("ArrowsOfOne", "arrows", R"(["cross"])"),

    filledRow("FakeNumber", "fake_numerical_value", "1.5", "1.5"),
    filledRow("FakeTextMayBeEmpty", "fake_alphanumerical_value", R"("")", R"("")"),
};

class DimensionRows : public test::ModelRows
{
};

TEST_P(DimensionRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Pmi, DimensionRows, testing::ValuesIn(kRows), DimensionRows::nameOf);

const test::EnumRow kEnums[] = {
    enumRow("ExcPMIDimension::EMainType", "main_type", &ExcPMIDimension::mainType, &ExcPMIDimension::setMainType,
            {"unknown", "basic", "reference", "tolerance", "coord_dim", "hole_callout"}, "basic"),
    enumRow("ExcPMIDimension::ESubType", "sub_type", &ExcPMIDimension::subType, &ExcPMIDimension::setSubType,
            {"distance",
             "distance_offset",
             "length",
             "length_or_distance",
             "length_curvilinear",
             "angle",
             "radius",
             "radius_tangent",
             "radius_cylinder",
             "radius_edge",
             "diameter",
             "diameter_tangent",
             "diameter_cylinder",
             "diameter_edge",
             "diameter_cone",
             "chamfer",
             "slope",
             "dim_gdt",
             "dim_datum_feature",
             "dim_datum_target",
             "dim_balloon",
             "no_dim",
             "angle_arc",
             "length_circular",
             "fillet",
             "coord_dimension_2d",
             "coord_dimension_3d"},
            "angle"),
    enumRow("ExcPMIDimension::EDimUnit", "unit", &ExcPMIDimension::unit, &ExcPMIDimension::setUnit,
            {"none", "mm", "inch", "meter", "cm", "km", "foot", "f_i_f64", "f_i_f16", "f_i_dec", "degree", "minute",
             "second", "radian", "grade"},
            "cm"),
    enumRow("ExcPMIDimension::EArrowSymbol", R"({"arrows":["?",null]})", &ExcPMIDimension::arrowSymbolStart,
            &ExcPMIDimension::setArrowSymbolStart,
            {"not_used",
             "cross",
             "plus",
             "concentric",
             "coincident",
             "full_circle",
             "full_square",
             "full_star",
             "dot",
             "small_dot",
             "misc1",
             "misc2",
             "full_circle2",
             "full_square2",
             "open_arrow",
             "unfilled_arrow",
             "blanked_arrow",
             "filled_arrow",
             "unfilled_circle",
             "blanked_circle",
             "filled_circle",
             "crossed_circle",
             "blanked_square",
             "filled_square",
             "blanked_triangle",
             "filled_triangle",
             "manipulator_square",
             "manipulator_diamond",
             "manipulator_circle",
             "manipulator_triangle",
             "double_open_arrow",
             "wave"},
            "blanked_arrow"),
};

class DimensionEnums : public test::EnumRows
{
};

TEST_P(DimensionEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Pmi, DimensionEnums, testing::ValuesIn(kEnums), DimensionEnums::nameOf);

TEST(Dimension, TellsWhatItRead)
{
    const auto dimension = test::readFrom<ExcPMIDimension>(
        R"({"numerical_tolerance":[-1.5,2.5],"alphanumerical_tolerance":["low","up"],)"
        R"("texts":["p","s","b","a","u","l","w"],"line":[[1.0,2.0],[3.0,4.0]],"arrows":["cross","wave"]})");
    EXPECT_EQ(dimension.numericalToleranceLower(), -1.5);
    EXPECT_EQ(dimension.numericalToleranceUpper(), 2.5);
    EXPECT_EQ(dimension.alphanumericalToleranceLower(), WIDE("low"));
    EXPECT_EQ(dimension.alphanumericalToleranceUpper(), WIDE("up"));
    EXPECT_EQ(dimension.prefix(), WIDE("p"));
    EXPECT_EQ(dimension.suffix(), WIDE("s"));
    EXPECT_EQ(dimension.before(), WIDE("b"));
    EXPECT_EQ(dimension.after(), WIDE("a"));
    EXPECT_EQ(dimension.upper(), WIDE("u"));
    EXPECT_EQ(dimension.lower(), WIDE("l"));
    EXPECT_EQ(dimension.below(), WIDE("w"));
    EXPECT_EQ(dimension.lineStart()[1], 2.0);
    EXPECT_EQ(dimension.lineEnd()[1], 4.0);
    EXPECT_EQ(dimension.arrowSymbolStart(), ExcPMIDimension::EArrowSymbol::Wave);
    EXPECT_EQ(dimension.arrowSymbolEnd(), ExcPMIDimension::EArrowSymbol::NotUsed);
}

TEST(Dimension, WritesItsFakeValuesByTheirFlagsAlone)
{
    FilledDimension sent;
    sent.setHasFaceNumericalValue(true);
    EXPECT_FALSE(sent.hasFakeAlphanumericalValue());
    EXPECT_EQ(test::written(sent), dimension(kFilled, "fake_numerical_value", "3.5"));
    sent.setHasFaceNumericalValue(false);
    sent.setHasAlphanumericalValue(true);
    EXPECT_FALSE(sent.hasFakeNumericalValue());
    EXPECT_EQ(test::written(sent), dimension(kFilled, "fake_alphanumerical_value", R"("f")"));

    // A flag that is set stays so.
    test::readText(sent, R"({"fake_alphanumerical_value":7})");
    EXPECT_TRUE(sent.hasFakeAlphanumericalValue());
    EXPECT_EQ(sent.fakeAlphanumericalValue(), WIDE("f"));
}

TEST(Dimension, NeitherWritesNorReadsItsKindOfCallout)
{
    using ECallout = ExcPMIDimension::ECalloutFeatureAnnotationType;
    ExcPMIDimension dimension;
    dimension.setCalloutFeatureAnnotationType(ECallout{7});
    const ExcPMIDimension copy = dimension;
    EXPECT_EQ(copy.calloutFeatureAnnotationType(), ECallout{7});
    EXPECT_EQ(test::readFrom<ExcPMIDimension>(test::written(dimension)).calloutFeatureAnnotationType(), ECallout{1});
}

} // namespace
