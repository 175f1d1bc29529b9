#include "arguments.h"
#include "json/pointer.h"
#include "measures.h"
#include "printing/escaped.h"
#include "printing/item_lines.h"
#include "printing/json_printer.h"
#include "printing/scalar_text.h"
#include "tests/support/helpers.h"
#include "tests/support/json_text.h"

#include <gmock/gmock.h>

#include <limits>
#include <sstream>
#include <string>

namespace
{

std::string printed(const vrx::JsonValue& value, bool all, const printing::Palette& palette = printing::kPlain)
{
    std::ostringstream out;
    printing::JsonPrinter(out, palette, all).print(value);
    return out.str();
}

std::string numbers(int count)
{
    std::string text = "[0";
    for (int i = 1; i < count; ++i)
    {
        text += ',' + std::to_string(i);
    }
    return text + ']';
}

TEST(JsonPrinter, PacksNumbersAndIndentsTheRest)
{
    EXPECT_EQ(printed(test::parsed(R"({"a":[1,2.5],"b":[[1],{}],"c":[],"d":{"e":null},"f":[true]})"), false), R"({
  "a": [1, 2.5],
  "b": [
    [1],
    {}
  ],
  "c": [],
  "d": {
    "e": null
  },
  "f": [
    true
  ]
}
)");
}

TEST(Sentences, AreHarmlessForATerminal)
{
    EXPECT_EQ(printing::harmless(WIDE("C:\\a\"\x1B[31m\n\u202E\u00E9")), "C:\\a\"\\u001B[31m\\n\\u202E\u00E9");
}

TEST(JsonPrinter, ShortensWhatIsLongUnlessAllIsWanted)
{
    const vrx::JsonDocument array = test::parsed(numbers(3136));
    EXPECT_EQ(printed(array, false), "[0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, ... 3,120 more]\n");
    EXPECT_EQ(test::textOf(test::parsed(printed(array, true))), numbers(3136));

    const std::string text(201, 'x');
    EXPECT_EQ(printed(test::parsed("[\"" + text + "\"]"), false),
              "[\n  \"" + std::string(200, 'x') + "\"... 1 more\n]\n");
    vrx::JsonDocument objects(rapidjson::kArrayType);
    for (int i = 0; i < 18; ++i)
    {
        objects.PushBack(vrx::JsonValue(i == 15), objects.GetAllocator());
    }
    EXPECT_THAT(printed(objects, false), testing::EndsWith("  false,\n  true,\n  ... 2 more\n]\n"));
}

TEST(JsonPrinter, LetsNothingThroughThatATerminalObeys)
{
    vrx::JsonDocument document(rapidjson::kObjectType);
    const mp::wstring text = {0x1B,   '[',    0x9B, 0x7F, 0,    0x202E, 0x2066, 0xD800, 'x',
                              0xDC00, 0xFEFF, '"',  '\\', '\n', 0xD83D, 0xDE00, 0xE9};
    const vrx::JsonValue value(text.data(), static_cast<rapidjson::SizeType>(text.size()), document.GetAllocator());
    EXPECT_EQ(printing::scalarText(value),
              "\"\\u001B[\\u009B\\u007F\\u0000\\u202E\\u2066\\uD800x\\uDC00\\uFEFF\\\"\\\\\\n"
              "\xF0\x9F\x98\x80\xC3\xA9\"");
}

TEST(JsonPrinter, ColoursEndWithWhatTheyColour)
{
    EXPECT_EQ(printed(test::parsed(R"({"a":1})"), false, printing::kColored),
              "{\n  \x1B[36m\"a\"\x1B[0m: \x1B[33m1\x1B[0m\n}\n");
}

TEST(ScalarText, DoublesComeBackAndAreNoIntegers)
{
    const auto text = [](double number) { return printing::scalarText(vrx::JsonValue(number)); };
    EXPECT_EQ(text(1), "1.0");
    EXPECT_EQ(text(0.1), "0.1");
    EXPECT_EQ(text(-0.0), "-0.0");
    EXPECT_EQ(text(1e23), "1e+23");
    EXPECT_EQ(text(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(text(-std::numeric_limits<double>::infinity()), "-Infinity");
    EXPECT_EQ(printing::scalarText(vrx::JsonValue(std::uint64_t{18446744073709551615U})), "18446744073709551615");
}

TEST(JsonPrinter, TakesWhatOnlyABinaryFormCanHold)
{
    vrx::JsonDocument document;
    const auto populate = [](vrx::JsonDocument& handler) {
        return handler.StartObject() && handler.Int(5) && handler.Int(6) && handler.EndObject(1);
    };
    document.Populate(populate);
    EXPECT_EQ(printed(document, false), "{\n  5: 6\n}\n");
}

TEST(Pointer, LeadsWhereItsStandardSays)
{
    const vrx::JsonDocument document = test::parsed(R"({"":1,"a/b":[2,{"m~n":3}],"0":4})");
    const auto at = [&document](const std::string& pointer) {
        const vrx::JsonValue* const value = json::resolve(document, json::pointerOf(pointer));
        return value == nullptr ? "nowhere" : printing::briefText(*value);
    };
    EXPECT_EQ(at(""), "{...}");
    EXPECT_EQ(at("/"), "1");
    EXPECT_EQ(at("/a~1b/1/m~0n"), "3");
    EXPECT_EQ(at("/0"), "4");
    for (const char* const lost : {"/a~1b/01", "/a~1b/-", "/a~1b/2", "/a~1b/99999999999999999999", "/x", "/a~1b/0/0"})
    {
        EXPECT_EQ(at(lost), "nowhere") << lost;
    }
    EXPECT_THROW(json::pointerOf("a"), tool::UsageError);
    EXPECT_THROW(json::pointerOf("/~2"), tool::UsageError);
}

TEST(Measures, AreReadAsWritten)
{
    EXPECT_EQ(tool::sizeOf("1000"), 1000U);
    EXPECT_EQ(tool::sizeOf("1.5K"), 1536U);
    EXPECT_EQ(tool::sizeOf("4G"), std::uint64_t{4} << 30U);
    EXPECT_EQ(tool::durationOf("1.5h").count(), 5400);
    for (const char* const wrong : {"", "x", "-1", "1X", "1KK", "nan", "inf", "0x10"})
    {
        EXPECT_THROW(tool::sizeOf(wrong), tool::UsageError) << wrong;
    }
    EXPECT_THROW(tool::durationOf("5"), tool::UsageError);
    EXPECT_EQ(tool::counted(1234567), "1,234,567");
}

TEST(Summary, TellsIdSizesAndTheLongestArrays)
{
    input::Item item;
    item.number = 3;
    item.sender = input::ESender::Translator;
    item.time = std::chrono::microseconds(1'250'000);
    item.head = {vrx::EMessageKind::Envelope, WIDE("exc_block_visualization\x1B"), WIDE("name")};
    item.message = test::parsed(R"({"binary":true})");
    item.buffer = input::EBuffer::Present;
    item.content.resize(1000);
    item.isCompressed = true;
    item.plainSize = 4096;
    item.form = test::parsed(R"({"block_id":7,"faces":[{"n":[1,2,3]},{"n":[4,5]}],"empty":[]})");
    EXPECT_EQ(printing::summary(item, printing::kPlain),
              "#3 1.250 s from the translator: exc_block_visualization\\u001B, buffer 1,000 bytes (compressed, plain "
              "4,096), block 7, faces 2, n 5");
}

} // namespace
