#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_common.h"

using namespace vrx;
using test::row;

namespace
{

class CommonRows : public test::ModelRows
{
};

const char* const kIdentity = R"([[1.0,0.0,0.0],[0.0,1.0,0.0],[0.0,0.0,1.0]])";
const char* const kDefaultPlace =
    R"({"affine":[[1.0,0.0,0.0],[0.0,1.0,0.0],[0.0,0.0,1.0]],"translation":[0.0,0.0,0.0]})";
const char* const kNoVector = "[ERROR] Exchange vector/point (2D/3D) object should have a JSON array type.";
const char* const kNoPath = "[ERROR] ExcFullSubentPath object should have a JSON object type.";
const char* const kNoSubentId = "[ERROR] ExcSubentId object should have a JSON object type.";
const char* const kDefaultProperty = R"({"name":"","type":"unknown","value":""})";

const test::ModelRow kRows[] = {
    row<ExcVector2d>("Vector2d", "[1.5,-2.0]", "[1.5,-2.0]"),
    row<ExcVector2d>("Vector2dOfAnObject", "{}", "[0.0,0.0]", {kNoVector}),
    row<ExcVector3d>("Vector3dIgnoresAFourth", "[1.0,2.0,3.0,4.0]", "[1.0,2.0,3.0]"),
    row<ExcVector3d>("Vector3dEndsAtAnInteger", "[1.0,2,3.0]", "[1.0,0.0,0.0]"),
    row<ExcVector3d>("Vector3dTakesExponents", "[1e0,2E-1,-0.0]", "[1.0,0.2,-0.0]"),
    row<ExcVector3d>("Vector3dOfNull", "null", "[0.0,0.0,0.0]", {kNoVector}),

    row<ExcMatrix3d>("MatrixRowByRow", "[[1.0,2.0,3.0],[4.0],[]]", "[[1.0,2.0,3.0],[4.0,1.0,0.0],[0.0,0.0,1.0]]"),
    row<ExcMatrix3d>("MatrixEndsAtAWrongRow", "[[1.0,2.0,3.0],5,[7.0,8.0,9.0]]",
                     "[[1.0,2.0,3.0],[0.0,1.0,0.0],[0.0,0.0,1.0]]"),
    row<ExcMatrix3d>("MatrixOfAnObjectIsSilent", "{}", kIdentity),

    row<ExcTransformation>("TransformationDefault", "{}", kDefaultPlace),
    row<ExcTransformation>("TransformationOfAnArrayIsSilent", "[]", kDefaultPlace),
    row<ExcTransformation>("TransformationHandsOverAnyKind", R"({"affine":5,"translation":{}})", kDefaultPlace,
                           {kNoVector}),
    row<ExcTransformation>("Transformation",
                           R"({"translation":[1.0,2.0,3.0],"affine":[[2.0,0.0,0.0],[0.0,2.0,0.0],[0.0,0.0,2.0]]})",
                           R"({"affine":[[2.0,0.0,0.0],[0.0,2.0,0.0],[0.0,0.0,2.0]],"translation":[1.0,2.0,3.0]})"),

    row<ExcColor>("ColorDefault", "null", "null"),
    row<ExcColor>("Color", R"({"alpha":4,"rgb":[1,2,3]})", R"({"rgb":[1,2,3],"alpha":4})"),
    row<ExcColor>("ColorWithoutAlpha", R"({"rgb":[1,2,3,9]})", R"({"rgb":[1,2,3]})"),
    row<ExcColor>("ColorOfAlphaAlone", R"({"rgb":5,"alpha":9})", R"({"alpha":9})"),
    row<ExcColor>("ColorExitsEarlyWhenShort", R"({"rgb":[1,2],"alpha":9})", R"({"rgb":[1,2,0]})"),
    row<ExcColor>("ColorExitsEarlyAtANegative", R"({"rgb":[1,-2,3],"alpha":9})", R"({"rgb":[1,0,0]})"),
    row<ExcColor>("ColorExitsEarlyAtADouble", R"({"rgb":[1.0,2,3],"alpha":9})", R"({"rgb":[0,0,0]})"),
    row<ExcColor>("ColorIsCutTo16Bits", R"({"rgb":[70000,65535,65536],"alpha":65537})",
                  R"({"rgb":[4464,65535,0],"alpha":1})"),

    row<ExcMiscProperty>("Property", R"({"value":"7","type":"date_time","name":"n"})",
                         R"({"name":"n","type":"date_time","value":"7"})"),
    row<ExcMiscProperty>("PropertyTakesTextAlone", R"({"name":1,"type":2,"value":true})", kDefaultProperty),
    row<ExcMiscProperty>("PropertyOfAnUnknownType", R"({"type":"Integer"})",
                         R"({"name":"","type":"boolean","value":""})"),
    row<ExcMiscProperty>("PropertyOfAnArrayIsSilent", "[]", kDefaultProperty),
    row<ExcMiscProperty>("PropertyIsCutAtNul", R"({"name":"ab\u0000c","type":"string\u0000x","value":"\u0000"})",
                         R"({"name":"ab","type":"string","value":""})"),
    row<ExcMiscData>("MiscDataKeepsItsLength", R"([1,{"name":"n"}])",
                     R"([{"name":"","type":"unknown","value":""},{"name":"n","type":"unknown","value":""}])"),
    row<ExcMiscData>("MiscDataOfAnObjectIsSilent", R"({"name":"n"})", "[]"),

    row<ExcSubentId>("SubentId", R"({"index":18446744073709551615,"type":"v"})",
                     R"({"type":"v","index":18446744073709551615})"),
    row<ExcSubentId>("SubentIdOfAnUnknownType", R"({"type":"F","index":-1})", R"({"type":"0","index":0})"),
    row<ExcSubentId>("SubentIdOfADouble", R"({"type":"e","index":5.0})", R"({"type":"e","index":0})"),
    row<ExcSubentId>("SubentIdOfAnArray", "[]", R"({"type":"0","index":0})", {kNoSubentId}),

    row<ExcFullSubentPath>("Path", R"({"subent_id":{"type":"f","index":2},"body_id":7,"block_references":["a","b"]})",
                           R"({"block_references":["a","b"],"body_id":7,"subent_id":{"type":"f","index":2}})"),
    row<ExcFullSubentPath>("PathSkipsWhatIsNoText", R"({"block_references":["a\u0000z",1,"b",null]})",
                           R"({"block_references":["a","b"],"body_id":0,"subent_id":{"type":"0","index":0}})"),
    row<ExcFullSubentPath>("PathOfAWrongSubentId", R"({"body_id":1,"subent_id":null})",
                           R"({"body_id":1,"subent_id":{"type":"0","index":0}})", {kNoSubentId}),
    row<ExcFullSubentPath>("PathOfText", R"("a")", R"({"body_id":0,"subent_id":{"type":"0","index":0}})", {kNoPath}),

    row<ExcEntity>("EntityUnknown", R"({"id":"i","description":"d","fsp":{}})", R"({"type":"unknown"})"),
    row<ExcEntity>("EntityOfPath", R"({"type":"fsp","fsp":{"body_id":3},"id":"i"})",
                   R"({"type":"fsp","fsp":{"body_id":3,"subent_id":{"type":"0","index":0}}})"),
    row<ExcEntity>("EntityOfNoPath", R"({"type":"fsp"})", R"({"type":"fsp","fsp":null})"),
    row<ExcEntity>("EntityOfANullPath", R"({"type":"fsp","fsp":null})",
                   R"({"type":"fsp","fsp":{"body_id":0,"subent_id":{"type":"0","index":0}}})", {kNoPath}),
    row<ExcEntity>("EntityVisu", R"({"type":"visu","description":"d"})", R"({"type":"visu","id":""})"),
    row<ExcEntity>("EntityMfg", R"({"type":"mfg","id":"i"})", R"({"type":"mfg","id":"i"})"),
    row<ExcEntity>("EntityOriginal", R"({"type":"original","id":"i","description":"d"})",
                   R"({"type":"original","description":"d","id":"i"})"),
    row<ExcEntity>("EntityOfAnUnknownType", R"({"type":"Visu"})", R"({"type":"fsp","fsp":null})"),
    row<ExcEntity>("EntityOfANumber", "1", R"({"type":"unknown"})",
                   {"[ERROR] ExcEntity object should have a JSON object type."}),
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

// The names in the order of their numbers; an empty name stands for a number that has none.
template <class E>
void expectNames(const std::vector<wstring>& names, E ofUnlisted)
{
    for (std::size_t number = 0; number < names.size(); ++number)
    {
        const auto value = static_cast<E>(number);
        EXPECT_EQ(enumToString(value), names[number].empty() ? WIDE("unknown") : names[number]) << number;
        if (!names[number].empty())
        {
            EXPECT_EQ(enumFromString<E>(names[number]), value) << number;
        }
    }
    EXPECT_EQ(enumToString(static_cast<E>(names.size())), WIDE("unknown"));
    EXPECT_EQ(enumToString(static_cast<E>(-1)), WIDE("unknown"));
    for (const wstring& unlisted : {wstring(), wstring(WIDE("Unknown")), names[1] + WIDE(" "), wstring(WIDE("mm"))})
    {
        EXPECT_EQ(enumFromString<E>(unlisted), ofUnlisted);
    }
}

TEST(Units, HaveTheirNamesAndReadWhatIsUnlistedAsTheLowestName)
{
    expectNames<ELengthUnitType>({WIDE("unknown"), WIDE("model_unit"), WIDE("nanometer"), WIDE("micrometer"),
                                  WIDE("millimeter"), WIDE("centimeter"), WIDE("decimeter"), WIDE("meter"),
                                  WIDE("inch"), WIDE("foot"), WIDE("mile"), WIDE("kilometer"), WIDE("milliinch"),
                                  WIDE("microinch")},
                                 ELengthUnitType::Centimeter);
    expectNames<EMassUnitType>({WIDE("unknown"), WIDE("model_unit"), wstring(), WIDE("centigram"), WIDE("decigram"),
                                WIDE("gram"), WIDE("kilogram"), WIDE("poind_mass"), WIDE("tonne"), WIDE("slug"),
                                WIDE("lbfsec2_in")},
                               EMassUnitType::Centigram);
    expectNames<ETimeUnitType>({WIDE("unknown"), WIDE("model_unit"), WIDE("nanosecond"), WIDE("microsecond"),
                                WIDE("millisecond"), WIDE("second"), WIDE("minute"), WIDE("hour"), WIDE("day")},
                               ETimeUnitType::Day);
    expectNames<ETemperatureUnitType>(
        {WIDE("unknown"), WIDE("model_unit"), WIDE("fahrenheit"), WIDE("celsius"), WIDE("kelvin")},
        ETemperatureUnitType::Celsius);
    expectNames<EWorldOrientation>({WIDE("unknown"), WIDE("up_x"), WIDE("up_y"), WIDE("up_z")},
                                   EWorldOrientation::Unknown);
}

} // namespace
