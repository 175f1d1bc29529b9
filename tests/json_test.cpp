#include "tests/support/helpers.h"
#include "tests/support/json_text.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/shapes.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

using namespace vrx;
using test::parsed;
using test::textOf;

namespace
{

TEST(JsonTextIO, WritesOneMemberALineAndAnArrayOnOne)
{
    const JsonDocument document = parsed(R"({"a":[1,{"b":2,"c":[]}],"d":{},"e":{"f":null}})");
    EXPECT_EQ(textOf(document, true), "{\n"
                                      "  \"a\": [1, {\n"
                                      "      \"b\": 2,\n"
                                      "      \"c\": []\n"
                                      "    }],\n"
                                      "  \"d\": {},\n"
                                      "  \"e\": {\n"
                                      "    \"f\": null\n"
                                      "  }\n"
                                      "}");
    EXPECT_EQ(textOf(document), R"({"a":[1,{"b":2,"c":[]}],"d":{},"e":{"f":null}})");
}

TEST(JsonTextIO, KeepsTheKindsOfNumbersAndEscapes)
{
    for (const char* const text :
         {"[0,-1,2147483648,-2147483649,18446744073709551615]", "[1.0,-0.0,1.5,1e300,5e-324]", "[true,false,null]",
          R"("\u0000\u0001\"\\\b\f\n\r\t/")", "-7", R"({"":{"":0},"a":1,"a":2})"})
    {
        EXPECT_EQ(textOf(parsed(text)), text);
    }
    EXPECT_EQ(textOf(parsed("[1e0, 100E-2, 20000000000000000000]")), "[1.0,1.0,20000000000000000000.0]");
}

// Whether or not the buffer of the stream has room for it.
TEST(JsonTextIO, WritesTheLastUnitAtAnyPlace)
{
    for (std::size_t before = 0; before < 300; ++before)
    {
        const wstring units = wstring(before, WIDE('a')) + wchar(0xFFFF);
        JsonDocument document;
        document.SetString(units.data(), static_cast<rapidjson::SizeType>(units.size()), document.GetAllocator());
        mp::wostringstream stream;
        JsonTextIO::write(stream, document, false);
        ASSERT_TRUE(stream.str() == WIDE('"') + units + WIDE('"')) << before;
    }
}

TEST(JsonTextIO, ReadsOneValueUpToTheEndOrANul)
{
    EXPECT_EQ(textOf(parsed(" \t\r\n[1] \t\r\n")), "[1]");
    EXPECT_EQ(textOf(parsed(std::string_view("[1]\0]", 5))), "[1]");
}

// Gives one unit after the other, and never tells how many there are.
class UnitByUnit : public std::basic_streambuf<wchar>
{
public:
    explicit UnitByUnit(wstring text)
        : m_text(std::move(text))
    {
    }

protected:
    int_type underflow() override
    {
        return m_next < m_text.size() ? traits_type::to_int_type(m_text[m_next]) : traits_type::eof();
    }
    int_type uflow() override
    {
        const int_type unit = underflow();
        m_next += traits_type::eq_int_type(unit, traits_type::eof()) ? 0U : 1U;
        return unit;
    }

private:
    wstring m_text;
    std::size_t m_next = 0;
};

TEST(JsonTextIO, ReadsAStreamThatDoesNotTellItsSize)
{
    UnitByUnit buffer(WIDE(R"({"a":[1,2]})"));
    mp::wistream stream(&buffer);
    JsonDocument document;
    JsonTextIO::read(stream, document);
    EXPECT_EQ(textOf(document), R"({"a":[1,2]})");
}

TEST(JsonTextIO, ReadsNothingFromAStreamThatHasFailed)
{
    JsonDocument document = parsed("[1]");
    mp::wistringstream stream(WIDE("[2]"));
    stream.setstate(std::ios_base::failbit);
    JsonTextIO::read(stream, document);
    EXPECT_EQ(textOf(document), "[1]");
    EXPECT_TRUE(document.HasParseError());
}

TEST(JsonTextIO, TakesTheEscapeOfALoneLowSurrogateForItsUnit)
{
    const std::pair<const char*, wstring> rows[] = {
        {R"("\uDc0f\udFFFa\uDCA9")", {0xDC0F, 0xDFFF, u'a', 0xDCA9}},
        {R"("\ud800\udc00\udc00")", {0xD800, 0xDC00, 0xDC00}},
        {R"("\n\uDC00")", {u'\n', 0xDC00}},
        {R"("\u0000\uDC00\\udc00")", {0, 0xDC00, u'\\', u'u', u'd', u'c', u'0', u'0'}},
    };
    for (const auto& [text, units] : rows)
    {
        const JsonDocument document = parsed(text);
        ASSERT_TRUE(document.IsString()) << text;
        EXPECT_TRUE(wstring(document.GetString(), document.GetStringLength()) == units) << text;
    }
    for (const char* const text : {R"("\udc0")", R"("\udc0g")", R"(\udc00)", R"("\udc00)", R"("\ud800\\udc00")"})
    {
        EXPECT_TRUE(parsed(text).HasParseError()) << text;
    }
}

TEST(JsonTextIO, ADocumentStaysAsItWasWhenTheTextIsNoJson)
{
    for (const char* const text : {"",
                                   " ",
                                   "{} {}",
                                   "{",
                                   "[1,]",
                                   R"({"a":1,})",
                                   R"({"a":1)",
                                   "[NaN]",
                                   "[Infinity]",
                                   "[1] // comment",
                                   "{a:1}",
                                   "{'a':1}",
                                   "[01]",
                                   "[1.]",
                                   "[+1]",
                                   "[1e400]",
                                   "\"a",
                                   R"("\x")",
                                   R"("\ud800")",
                                   "nul",
                                   "]"})
    {
        JsonDocument document = parsed(R"({"kept":1})");
        mp::wistringstream stream(test::wide(text));
        JsonTextIO::read(stream, document);
        EXPECT_EQ(textOf(document), R"({"kept":1})") << text;
        EXPECT_TRUE(document.HasParseError()) << text;
        EXPECT_TRUE(parsed(text).IsNull()) << text;
    }
}

// What stands on the stream when a document is refused.
std::string refused(const JsonDocument& document, bool pretty)
{
    mp::wostringstream stream;
    EXPECT_EQ(test::thrownBy<std::runtime_error>([&] { JsonTextIO::write(stream, document, pretty); }),
              "Cannot write object into json document");
    return mp::toNarrow(stream.str());
}

TEST(JsonTextIO, RefusesANumberThatIsNotFiniteAfterWhatStandsBeforeIt)
{
    for (const double number : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                                -std::numeric_limits<double>::infinity()})
    {
        JsonDocument document = parsed(R"({"a":[1],"b":0,"c":2})");
        document[WIDE("b")].SetDouble(number);
        EXPECT_EQ(refused(document, false), R"({"a":[1],"b":)");
        EXPECT_EQ(refused(document, true), "{\n  \"a\": [1],\n  \"b\": ");
    }
}

TEST(JsonTextIO, RefusesANameThatIsNoString)
{
    // {"a": true, 1: null}
    const std::string form = test::bytes("03000000 1E00000000000000"
                                         "05000000 0100000000000000 6100 02000000"
                                         "06000000 01000000 00000000");
    JsonDocument document;
    JsonBinaryIO::read(form.data(), form.size(), document, document.GetAllocator());
    EXPECT_EQ(refused(document, false), R"({"a":true)");
}

TEST(JsonTextIO, TakesAMillionLevels)
{
    const std::size_t levels = 1000000;
    const std::string arrays = std::string(levels, '[') + std::string(levels, ']');
    EXPECT_TRUE(textOf(parsed(arrays)) == arrays);

    std::string objects;
    for (std::size_t i = 0; i < levels; ++i)
    {
        objects += R"({"a":)";
    }
    objects += '0' + std::string(levels, '}');
    EXPECT_TRUE(textOf(parsed(objects)) == objects);
    EXPECT_TRUE(parsed(std::string(levels, '[')).IsNull());
}

enum class Thread
{
    None,
    Metric,
    Pipe,
    Inch,
};
constexpr EnumName<Thread> kThreads[] = {{Thread::None, WIDE("none")},
                                         {Thread::Metric, WIDE("Metric")},
                                         {Thread::Pipe, WIDE("Metr")},
                                         {Thread::Inch, WIDE("inch")}};
constexpr const auto& enumTable(Thread)
{
    return kThreads;
}

enum class Size
{
    Small,
    Third,
    Large,
};
constexpr EnumName<Size> kSizes[] = {
    {Size::Small, WIDE("Small")}, {Size::Third, WIDE("3rd")}, {Size::Large, WIDE("L")}};
constexpr const auto& enumTable(Size)
{
    return kSizes;
}

TEST(EnumRule, AnUnlistedNameIsTheLowestByCodeUnit)
{
    // Capitals before small letters, the shorter before the longer, digits before both.
    for (const wstring& name : {wstring(), wstring(WIDE("metric")), wstring(WIDE("Inch")), wstring(WIDE("None"))})
    {
        EXPECT_EQ(enumValue<Thread>(name), Thread::Pipe);
        EXPECT_EQ(enumValue<Size>(name), Size::Third);
    }
    EXPECT_EQ(enumValue<Thread>(WIDE("inch")), Thread::Inch);
    EXPECT_EQ(enumName(static_cast<Thread>(9)), WIDE("none"));
    EXPECT_EQ(enumName(Size::Large), WIDE("L"));
}

template <class T, class = void>
constexpr bool isWritten = false;
template <class T>
constexpr bool isWritten<T, std::void_t<decltype(encode(std::declval<ByteWriter&>(), std::declval<const T&>()))>> =
    true;

template <class T, class = void>
constexpr bool isRead = false;
template <class T>
constexpr bool isRead<T, std::void_t<decltype(decode(std::declval<const TreeValue&>(), std::declval<T>()))>> = true;

template <class T, class = void>
constexpr bool canBeEmpty = false;
template <class T>
constexpr bool canBeEmpty<T, std::void_t<decltype(isEmpty(std::declval<const T&>()))>> = true;

// A conversion must not lead a field of another type to a rule that is not its own.
TEST(Fields, OfATypeThatNobodyThoughtOfDoNotCompile)
{
    static_assert(isWritten<bool> && isWritten<std::uint64_t> && isWritten<wstring> && isWritten<std::vector<double>>);
    static_assert(!isWritten<void*> && !isWritten<std::int64_t> && !isWritten<std::uint16_t> && !isWritten<wchar>);
    static_assert(isRead<float&> && isRead<std::array<double, 4>&> && isRead<Values<false, std::vector<wstring>>>);
    static_assert(!isRead<std::int64_t&> && !isRead<std::vector<std::int32_t>&> && !isRead<std::vector<wstring>&>);
    // What is read into a temporary would be lost; a rule is a temporary that refers to its fields.
    static_assert(!isRead<double&&> && !isRead<wstring&&> && isRead<Values<true, std::vector<double>>&&>);
    static_assert(canBeEmpty<std::int32_t> && canBeEmpty<wstring>);
    static_assert(!canBeEmpty<double> && !canBeEmpty<bool> && !canBeEmpty<std::uint64_t>);
}

} // namespace
