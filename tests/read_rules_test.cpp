#include "tests/full_rows/full_rows.h"
#include "tests/support/helpers.h"
#include "tests/support/json_text.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_value.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <stdexcept>

using namespace vrx;

namespace
{

ReadRules upToValues(std::uint64_t count)
{
    ReadRules rules;
    rules.values = count;
    return rules;
}

ReadRules upToDepth(std::uint64_t count)
{
    ReadRules rules;
    rules.depth = count;
    return rules;
}

ReadRules upToObjects(std::uint64_t count)
{
    ReadRules rules;
    rules.objects = count;
    return rules;
}

struct Extent
{
    std::uint64_t values = 1;
    std::uint64_t objects = 0;
    std::uint64_t depth = 0;
};

// The extent of a value, found by a walk over its tree.
Extent extentOf(const JsonValue& value)
{
    Extent extent;
    const auto take = [&extent](const JsonValue& child) {
        const Extent inner = extentOf(child);
        extent.values += inner.values;
        extent.objects += inner.objects;
        extent.depth = std::max(extent.depth, inner.depth);
    };
    if (value.IsObject())
    {
        for (const auto& member : value.GetObject())
        {
            take(member.name);
            take(member.value);
        }
    }
    else if (value.IsArray())
    {
        for (const JsonValue& element : value.GetArray())
        {
            take(element);
        }
    }
    const std::uint64_t own = value.IsObject() || value.IsArray() ? 1U : 0U;
    extent.objects += own;
    extent.depth += own;
    return extent;
}

// The error that the rules make of a text, and of its binary form, which must be the same; empty for none. A value is
// left in the documents only if there is none.
std::string errorOf(const std::string& text, const ReadRules& rules)
{
    const auto isEmptyAfter = [](const std::string& error, const JsonDocument& document) {
        return document.IsNull() == (error != "nothing");
    };
    mp::wistringstream stream(test::wide(text));
    JsonDocument fromText;
    std::string error = test::thrownBy<std::exception>([&] { JsonTextIO::read(stream, fromText, rules); });
    EXPECT_TRUE(isEmptyAfter(error, fromText)) << text;

    Bytes form;
    JsonBinaryIO::write(form, test::parsed(text));
    form.insert(form.begin(), 'x');
    JsonDocument fromForm;
    const std::string same = test::thrownBy<std::exception>(
        [&] { JsonBinaryIO::read(form.data() + 1, form.size() - 1, fromForm, fromForm.GetAllocator(), rules); });
    EXPECT_TRUE(isEmptyAfter(same, fromForm)) << text;
    EXPECT_EQ(same, error) << text;
    return error;
}

TEST(ReadRules, LimitTheValuesAndTheDepthOfTextsAndBinaryForms)
{
    const char* const texts[] = {"[]", R"({"a":1})", "[1,2,3,4,5]", R"([[[1.5,2.5],[true]],{"a":{"b":["c",-1]}}])",
                                 "[1,2.5,3,3,3,\"\",4,4,4,[]]"};
    for (const char* const text : texts)
    {
        const Extent extent = extentOf(test::parsed(text));
        EXPECT_EQ(errorOf(text, upToValues(extent.values)), "nothing");
        EXPECT_EQ(errorOf(text, upToValues(extent.values - 1)),
                  "The number of values is above the limit of " + std::to_string(extent.values - 1));
        EXPECT_EQ(errorOf(text, upToObjects(extent.objects)), "nothing");
        EXPECT_EQ(errorOf(text, upToObjects(extent.objects - 1)),
                  "The number of objects and arrays is above the limit of " + std::to_string(extent.objects - 1));
        EXPECT_EQ(errorOf(text, upToDepth(extent.depth)), "nothing");
        EXPECT_EQ(errorOf(text, upToDepth(extent.depth - 1)),
                  "The depth is above the limit of " + std::to_string(extent.depth - 1));
    }
}

TEST(ReadRules, RefuseANameTwiceInAnObject)
{
    const auto error = [](const std::string& text) { return errorOf(text, ReadRules::strict()); };
    const std::string failure = "An object has two members of the name ";
    EXPECT_EQ(error(R"({"a":1,"a":2})"), failure + "a");
    EXPECT_EQ(error(R"({"":1,"a":[{"b":1}],"":2})"), failure);
    EXPECT_EQ(error(R"([{"a":{"a":[{"b":1},{"b":2}]}},{"a":1,"b":{"a":1},"c":[{"c":{}}]}])"), "nothing");
    EXPECT_EQ(error(R"({"o":{"a":1,"b":{},"a":2},"p":1})"), failure + "a");

    std::string many = "{";
    for (int i = 0; i < 1000; ++i)
    {
        many += (i == 0 ? "\"n" : ",\"n") + std::to_string(i) + "\":{\"n" + std::to_string(i) + "\":1}";
    }
    EXPECT_EQ(error(many + "}"), "nothing");
    EXPECT_EQ(error(many + ",\"n500\":1}"), failure + "n500");
}

TEST(ReadRules, RefuseWhatOnlyOneFormCanHold)
{
    const auto errorOfForm = [](const char* hex) {
        const std::string form = test::bytes(hex);
        JsonDocument document;
        JsonBinaryIO::read(form.data(), form.size(), document, document.GetAllocator());
        return test::thrownBy<std::invalid_argument>([&] {
            JsonBinaryIO::read(form.data(), form.size(), document, document.GetAllocator(), ReadRules::strict());
        });
    };
    EXPECT_EQ(errorOfForm("02000000"), "nothing");
    EXPECT_EQ(errorOfForm("02000000 00"), "Bytes stand behind the value");
    EXPECT_EQ(errorOfForm("06000000 01000000 06000000 02000000"), "Bytes stand behind the value");
    EXPECT_EQ(errorOfForm("04000000 0400000000000000 00000000 02000000"), "Bytes stand behind the value");
    EXPECT_EQ(errorOfForm("03000000 0800000000000000 02000000 02000000"), "The name of a member is no string");
    EXPECT_EQ(errorOfForm("03000000 1000000000000000 03000000 0000000000000000 02000000"),
              "The name of a member is no string");

    const mp::wstring text = test::wide("{}") + mp::wchar{} + test::wide("{}");
    EXPECT_EQ(test::thrownBy<std::invalid_argument>([&] { JsonTextIO::check(text, ReadRules::strict()); }),
              "The text has a NUL in it");
    JsonTextIO::check(text, upToDepth(1));
    JsonTextIO::check(test::wide(R"(["\udc00",{"a":1,"a":)"), ReadRules::strict());
}

TEST(ReadRules, RefuseACompressedStreamWithoutItsEndOrWithMoreBehindIt)
{
    std::string plain;
    for (int i = 0; i < 2000; ++i)
    {
        plain += std::to_string(i * i);
    }
    for (const std::size_t size : {std::size_t{0}, std::size_t{100}, plain.size()})
    {
        std::string stream;
        Compressor::compress(stream, plain.data(), size, -1);
        const auto read = [](const std::string& bytes) {
            return test::thrownBy<std::runtime_error>([&] {
                Bytes out;
                Compressor::decompress(out, bytes.data(), bytes.size(), ReadRules::strict());
            });
        };
        EXPECT_EQ(read(stream), "nothing");
        EXPECT_EQ(read(stream + '\0'), "Bytes stand behind the compressed data");
        EXPECT_EQ(read(stream + stream.substr(stream.size() - 4)), "Bytes stand behind the compressed data");
        for (std::size_t cut = 1; cut < stream.size() - 2; cut += 1 + stream.size() / 100)
        {
            EXPECT_EQ(read(stream.substr(0, stream.size() - cut)), "The compressed data was cut short") << cut;
        }
    }
}

TEST(ReadRules, ForTheUntrustedAdmitAllClasses)
{
    for (const test::FullRow& row : test::allFullRows())
    {
        EXPECT_EQ(errorOf(row.out, ReadRules::forUntrusted()), "nothing") << row.out;
    }
    const auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_EQ(errorOf(nested(100), ReadRules::forUntrusted()), "nothing");
    EXPECT_EQ(errorOf(nested(101), ReadRules::forUntrusted()), "The depth is above the limit of 100");
}

} // namespace
