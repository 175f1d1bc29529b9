#include "tests/support/enum_row.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_common.h"

using namespace vrx;
using test::enumRow;
using test::row;

namespace
{

class CommonRows : public test::ModelRows
{
};

const char* const kDefaultPlace =
    R"({"affine":[[1.0,0.0,0.0],[0.0,1.0,0.0],[0.0,0.0,1.0]],"translation":[0.0,0.0,0.0]})";
const char* const kNoVector = "[ERROR] Exchange vector/point (2D/3D) object should have a JSON array type.";
const char* const kNoPath = "[ERROR] ExcFullSubentPath object should have a JSON object type.";
const char* const kNoSubentId = "[ERROR] ExcSubentId object should have a JSON object type.";

const test::ModelRow kRows[] = {
    row<ExcVector3d>("Vector3dIgnoresAFourth", "[1.0,2.0,3.0,4.0]", "[1.0,2.0,3.0]"),
    row<ExcVector3d>("Vector3dEndsAtAnInteger", "[1.0,2,3.0]", "[1.0,0.0,0.0]"),
    row<ExcVector3d>("Vector3dTakesExponents", "[1e0,2E-1,-0.0]", "[1.0,0.2,-0.0]"),

    row<ExcMatrix3d>("MatrixRowByRow", "[[1.0,2.0,3.0],[4.0],[]]", "[[1.0,2.0,3.0],[4.0,1.0,0.0],[0.0,0.0,1.0]]"),
    row<ExcMatrix3d>("MatrixEndsAtAWrongRow", "[[1.0,2.0,3.0],5,[7.0,8.0,9.0]]",
                     "[[1.0,2.0,3.0],[0.0,1.0,0.0],[0.0,0.0,1.0]]"),

    row<ExcTransformation>("TransformationDefault", "{}", kDefaultPlace),
    row<ExcTransformation>("TransformationHandsOverAnyKind", R"({"affine":5,"translation":{}})", kDefaultPlace,
                           {kNoVector}),

    row<ExcColor>("ColorDefault", "null", "null"),
    row<ExcColor>("ColorWithoutAlpha", R"({"rgb":[1,2,3,9]})", R"({"rgb":[1,2,3]})"),
    row<ExcColor>("ColorOfAlphaAlone", R"({"rgb":5,"alpha":9})", R"({"alpha":9})"),
    row<ExcColor>("ColorExitsEarlyWhenShort", R"({"rgb":[1,2],"alpha":9})", R"({"rgb":[1,2,0]})"),
    row<ExcColor>("ColorExitsEarlyAtANegative", R"({"rgb":[1,-2,3],"alpha":9})", R"({"rgb":[1,0,0]})"),
    row<ExcColor>("ColorExitsEarlyAtADouble", R"({"rgb":[1.0,2,3],"alpha":9})", R"({"rgb":[0,0,0]})"),
    row<ExcColor>("ColorIsCutTo16Bits", R"({"rgb":[70000,65535,65536],"alpha":65537})",
                  R"({"rgb":[4464,65535,0],"alpha":1})"),

    row<ExcMiscProperty>("PropertyIsCutAtNul", R"({"name":"ab\u0000c","type":"string\u0000x","value":"\u0000"})",
                         R"({"name":"ab","type":"string","value":""})"),
    row<ExcMiscData>("MiscDataKeepsItsLength", R"([1,{"name":"n"}])",
                     R"([{"name":"","type":"unknown","value":""},{"name":"n","type":"unknown","value":""}])"),

    row<ExcFullSubentPath>("PathSkipsWhatIsNoText", R"({"block_references":["a\u0000z",1,"b",null]})",
                           R"({"block_references":["a","b"],"body_id":0,"subent_id":{"type":"0","index":0}})"),
    row<ExcFullSubentPath>("PathOfAWrongSubentId", R"({"body_id":1,"subent_id":null})",
                           R"({"body_id":1,"subent_id":{"type":"0","index":0}})", {kNoSubentId}),

    row<ExcEntity>("EntityUnknown", R"({"id":"i","description":"d","fsp":{}})", R"({"type":"unknown"})"),
    row<ExcEntity>("EntityOfPath", R"({"type":"fsp","fsp":{"body_id":3},"id":"i"})",
                   R"({"type":"fsp","fsp":{"body_id":3,"subent_id":{"type":"0","index":0}}})"),
    row<ExcEntity>("EntityOfNoPath", R"({"type":"fsp"})", R"({"type":"fsp","fsp":null})"),
    row<ExcEntity>("EntityOfANullPath", R"({"type":"fsp","fsp":null})",
                   R"({"type":"fsp","fsp":{"body_id":0,"subent_id":{"type":"0","index":0}}})", {kNoPath}),
    row<ExcEntity>("EntityVisu", R"({"type":"visu","description":"d"})", R"({"type":"visu","id":""})"),
    row<ExcEntity>("EntityMfg", R"({"type":"mfg","id":"i"})", R"({"type":"mfg","id":"i"})"),
};

TEST_P(CommonRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Common, CommonRows, testing::ValuesIn(kRows), CommonRows::nameOf);

TEST(Vector, KeepsWhatAShortArrayDoesNotGive)
{
    ExcVector2d vector(7.0, 8.0);
    test::readText(vector, "[1.5]");
    EXPECT_EQ(test::written(vector), "[1.5,8.0]");
}

TEST(Vector, IsReadWithATraceLineAndWrittenWithoutOne)
{
    const test::LogCapture reading;
    const auto vector = test::readFrom<ExcVector3d>("[]");
    ASSERT_EQ(reading.lines("TRACE").size(), 1U);
    EXPECT_NE(reading.lines("TRACE").front().find("): readObject"), std::string::npos);

    const test::LogCapture writing;
    test::written(vector);
    EXPECT_TRUE(writing.lines("TRACE").empty());
    test::written(ExcMatrix3d());
    EXPECT_EQ(writing.lines("TRACE").size(), 1U);
}

TEST(VectorAndMatrix, RefuseAnIndexBehindTheirEnd)
{
    ExcVector2d vector;
    const ExcMatrix3d matrix;
    const auto textOf = [](auto operation) -> std::string {
        try
        {
            operation();
        }
        catch (const std::invalid_argument& error)
        {
            return error.what();
        }
        return "nothing thrown";
    };
    EXPECT_EQ(textOf([&] { vector[2] = 1.0; }), "out of range");
    EXPECT_EQ(textOf([&] { matrix.row(3); }), "out of range");
    EXPECT_EQ(matrix[2][2], 1.0);
}

TEST(Color, KeepsItsChannelsAndAnEarlierAlphaFlag)
{
    ExcColor color(1, 2, 3);
    EXPECT_EQ(test::written(color), R"({"rgb":[1,2,3]})");
    EXPECT_EQ(color.channel(ExcColor::ChannelAlpha), 255);

    ExcColor translucent(1, 2, 3, 4);
    test::readText(translucent, R"({"rgb":[9],"alpha":8})");
    EXPECT_EQ(test::written(translucent), R"({"rgb":[9,2,3],"alpha":4})");
    test::readText(translucent, R"({"rgb":[5,6,7]})");
    EXPECT_FALSE(translucent.hasAlpha());
    EXPECT_EQ(translucent[ExcColor::ChannelAlpha], 4);
    test::readText(translucent, "null");
    EXPECT_EQ(test::written(translucent), "null");
    EXPECT_EQ(translucent[ExcColor::ChannelBlue], 7);
}

TEST(MiscData, AppendsWhatItReads)
{
    ExcMiscData data;
    data.emplaceProperty(ExcMiscProperty().setName(WIDE("first")).set(ExcMiscProperty::EType::Double, WIDE("1.0")));
    test::readText(data, R"([1,{"name":"n"}])");
    test::readText(data, R"([1,{"name":"n"}])");
    ASSERT_EQ(data.properties().size(), 5U);
    EXPECT_EQ(data.properties().front().value(), WIDE("1.0"));
    EXPECT_EQ(data.properties().back().name(), WIDE("n"));
    data.clearProperties();
    EXPECT_TRUE(data.isEmpty());
}

TEST(Entity, ACopySharesItsPath)
{
    const auto entity = test::readFrom<ExcEntity>(R"({"type":"fsp","fsp":{"block_references":["a"]}})");
    const ExcEntity copy = entity; // NOLINT(performance-unnecessary-copy-initialization): the copy is the subject
    EXPECT_EQ(copy.fsp(), entity.fsp());
    test::readText(*entity.fsp(), R"({"block_references":["b"]})");
    EXPECT_EQ(copy.fsp()->refs(), (std::vector<wstring>{WIDE("a"), WIDE("b")}));
}

template <class E>
test::EnumRow unitRow(const char* title, std::vector<test::EnumEntry> entries, const char* ofUnlistedName)
{
    return enumRow<E>(title, enumToString<E>, enumFromString<E>, std::move(entries), ofUnlistedName);
}

const test::EnumRow kEnums[] = {
    enumRow("ExcMiscProperty::EType", "type", &ExcMiscProperty::type, &ExcMiscProperty::setType,
            {"unknown", "string", "integer", "double", "boolean", "date_time"}, "boolean"),
    enumRow("ExcSubentId::EType", "type", &ExcSubentId::type, &ExcSubentId::setType,
            {{48, "0"}, {98, "b"}, {101, "e"}, {102, "f"}, {118, "v"}}, "0"),
    enumRow("ExcEntity::EType", "type", &ExcEntity::type, &ExcEntity::setType,
            {"unknown", "fsp", "visu", "mfg", "original"}, "fsp"),
    unitRow<ELengthUnitType>("ELengthUnitType",
                             {"unknown", "model_unit", "nanometer", "micrometer", "millimeter", "centimeter",
                              "decimeter", "meter", "inch", "foot", "mile", "kilometer", "milliinch", "microinch"},
                             "centimeter"),
    unitRow<EMassUnitType>("EMassUnitType",
                           {"unknown",
                            "model_unit",
                            {3, "centigram"},
                            "decigram",
                            "gram",
                            "kilogram",
                            "poind_mass",
                            "tonne",
                            "slug",
                            "lbfsec2_in"},
                           "centigram"),
    unitRow<ETimeUnitType>(
        "ETimeUnitType",
        {"unknown", "model_unit", "nanosecond", "microsecond", "millisecond", "second", "minute", "hour", "day"},
        "day"),
    unitRow<ETemperatureUnitType>("ETemperatureUnitType", {"unknown", "model_unit", "fahrenheit", "celsius", "kelvin"},
                                  "celsius"),
    unitRow<EWorldOrientation>("EWorldOrientation", {"unknown", "up_x", "up_y", "up_z"}, "unknown"),
};

class CommonEnums : public test::EnumRows
{
};

TEST_P(CommonEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Common, CommonEnums, testing::ValuesIn(kEnums), CommonEnums::nameOf);

} // namespace
