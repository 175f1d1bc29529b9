#include "arguments.h"
#include "capture/capture_writer.h"
#include "files.h"
#include "input/input.h"
#include "tests/support/helpers.h"
#include "tests/support/json_text.h"
#include "tests/support/shared_memory.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/json_binary_io.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

namespace
{

using test::TemporaryFile;

input::Item readOne(const std::string& what, std::uint64_t limit = input::kDefaultLimit)
{
    std::vector<input::Item> items;
    input::readItems(
        what, [&items](input::Item& item) { items.push_back(std::move(item)); }, limit);
    EXPECT_EQ(items.size(), 1U);
    return items.empty() ? input::Item() : std::move(items.front());
}

std::string refusal(std::string_view bytes, std::uint64_t limit = input::kDefaultLimit)
{
    const TemporaryFile file(bytes);
    const std::string text = test::thrownBy<tool::InputError>([&] { readOne(file.name(), limit); });
    return text.substr(0, file.name().size()) == file.name() ? text.substr(file.name().size() + 2) : text;
}

std::string textOf(const vrx::JsonValue& value)
{
    vrx::JsonDocument copy;
    copy.CopyFrom(value, copy.GetAllocator());
    return test::textOf(copy);
}

std::string formOf(std::string_view json)
{
    std::vector<char> bytes;
    vrx::JsonBinaryIO::write(bytes, test::parsed(json));
    return {bytes.begin(), bytes.end()};
}

std::string compressed(std::string_view bytes)
{
    std::string out;
    vrx::Compressor::compress(out, bytes.data(), bytes.size(), -1);
    return out;
}

std::string utf16(mp::wstring_view text, bool lowByteFirst)
{
    std::string bytes;
    for (const mp::wchar unit : text)
    {
        const auto low = static_cast<char>(unit & 0xFFU);
        const auto high = static_cast<char>(unit >> 8U);
        bytes += lowByteFirst ? std::string{low, high} : std::string{high, low};
    }
    return bytes;
}

TEST(Input, TakesTextInEachEncoding)
{
    const mp::wstring text = WIDE("{\"a\":\"\u00E9\u4E2D\U0001F600\"}");
    const std::string utf8 = "{\"a\":\"\u00E9\u4E2D\U0001F600\"}";
    const std::vector<std::string> files = {
        utf8,
        "\xEF\xBB\xBF" + utf8,
        "\xFF\xFE" + utf16(text, true),
        "\xFE\xFF" + utf16(text, false),
        utf16(text, true),
        utf16(text, false),
        compressed(utf8),
    };
    for (const std::string& bytes : files)
    {
        const TemporaryFile file(bytes);
        const input::Item item = readOne(file.name());
        const vrx::JsonValue* const object = item.object();
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(mp::wstring((*object)[WIDE("a")].GetString()), WIDE("\u00E9\u4E2D\U0001F600"));
        EXPECT_TRUE(item.text.empty());
    }
}

TEST(Input, TakesBinaryFormCompressedOrNot)
{
    const std::string form = formOf(R"({"block_id":7})");
    for (const std::string& bytes : {form, compressed(form)})
    {
        const TemporaryFile file(bytes);
        const input::Item item = readOne(file.name());
        EXPECT_EQ(textOf(*item.object()), R"({"block_id":7})");
        EXPECT_EQ(item.plainSize, form.size());
        EXPECT_EQ(std::string(item.content.begin(), item.content.end()), bytes);
    }
}

TEST(Input, MessageShowsItsBufferAndLeavesIt)
{
    const mp::wstring name = test::leaveBuffer(compressed(formOf(R"({"x":1})")));
    const std::string narrow = mp::toNarrow(name);
    const TemporaryFile file(R"({"exchange_object_name":"exc_a","binary":true,"exchange_object_data":")" + narrow +
                             "\"}");
    const input::Item message = readOne(file.name());
    EXPECT_EQ(message.head.objectName, WIDE("exc_a"));
    EXPECT_EQ(message.buffer, input::EBuffer::Present);
    EXPECT_EQ(textOf(*message.object()), R"({"x":1})");

    const input::Item alone = readOne(narrow);
    EXPECT_EQ(textOf(*alone.object()), R"({"x":1})");
    EXPECT_FALSE(test::takeBuffer(name).empty());
    EXPECT_EQ(readOne(file.name()).buffer, input::EBuffer::Missing);
    EXPECT_EQ(test::thrownBy<tool::InputError>([&] { readOne(narrow); }),
              narrow + ": there is no such file, and no such buffer");
}

TEST(Input, BuffersWithoutFormAreBodiesOrDamaged)
{
    const mp::wstring name = test::leaveBuffer("some bodies");
    const std::string narrow = mp::toNarrow(name);
    const TemporaryFile geometry(R"({"exchange_object_name":"g","exchange_object_data":{"shared_acis_buffer_name":")" +
                                 narrow + "\"}}");
    const input::Item bodies = readOne(geometry.name());
    EXPECT_EQ(bodies.buffer, input::EBuffer::Present);
    EXPECT_EQ(bodies.plainSize, 11U);
    EXPECT_FALSE(bodies.form);
    EXPECT_TRUE(bodies.object()->IsObject());

    const TemporaryFile binary(R"({"exchange_object_name":"g","binary":true,"exchange_object_data":")" + narrow +
                               "\"}");
    EXPECT_EQ(readOne(binary.name()).buffer, input::EBuffer::Damaged);
    EXPECT_EQ(test::takeBuffer(name), "some bodies");
}

TEST(Input, SaysWhatItCannotRead)
{
    EXPECT_EQ(refusal("{\n \"a\": \xC3(\"}"), "malformed UTF-8 at byte 8");
    EXPECT_EQ(refusal("\"\xED\xA0\x80\""), "malformed UTF-8 at byte 1");
    EXPECT_EQ(refusal("\"\xF4\x90\x80\x80\""), "malformed UTF-8 at byte 1");
    EXPECT_EQ(refusal("\xE2\x82"), "malformed UTF-8 at byte 0; it may be the bodies of a block");
    EXPECT_EQ(refusal("{\n\"a\": nonsense}"), "no JSON: Invalid value. (line 2, column 7)");
    EXPECT_EQ(refusal(std::string("\xFF\xFE{", 3)), "UTF-16 text ends within a unit");
    EXPECT_EQ(refusal(""), "no JSON: The document is empty. (line 1, column 1)");
    EXPECT_EQ(refusal(formOf("[[1,2]]").substr(0, 30)), "damaged binary form: Failed to read all the bytes of array");
    EXPECT_EQ(refusal(std::string(100, ' '), 99), "more than 99 bytes; --limit raises that");
    EXPECT_EQ(refusal(compressed("\"" + std::string(10'000, 'x') + "\""), 9'999),
              "Decompressed data is above the limit of 9999 bytes; --limit raises it");
}

TEST(Input, LittleIsUnpackedOfWhatCannotBeRead)
{
    EXPECT_EQ(refusal(compressed(std::string(1'000'000, '\0'))), "neither a text nor a binary form");
    EXPECT_EQ(refusal(std::string(100, '\0')), "neither a text nor a binary form");
    EXPECT_EQ(refusal(compressed(std::string(input::kDefaultTextLimit + 1, ' '))),
              "Decompressed data is above the limit of 268435456 bytes; --limit raises it");
}

TEST(Input, GzipThatLiesOfItsSizeIsReadOrRefused)
{
    std::string bytes = compressed(formOf("[1]"));
    bytes.replace(bytes.size() - 4, 4, "\xFF\xFF\xFF\xFF");
    EXPECT_THAT(refusal(bytes), testing::StartsWith("damaged compressed data: "));
}

TEST(Input, DepthIsNoDanger)
{
    constexpr std::size_t kDeep = 1'000'000;
    const std::string text = std::string(kDeep, '[') + std::string(kDeep, ']');
    const TemporaryFile file(text);
    EXPECT_TRUE(readOne(file.name()).object()->IsArray());
    EXPECT_EQ(refusal(std::string().append(10'000'001, '[')), "nested deeper than 10000000 levels");

    const auto deepForm = [](std::uint64_t levels) {
        std::string form;
        for (std::uint64_t left = levels; left-- > 0;)
        {
            const std::uint64_t inner = left * 12;
            form.append("\4\0\0\0", 4).append(reinterpret_cast<const char*>(&inner), sizeof(inner)); // NOLINT: bytes
        }
        return form;
    };
    const TemporaryFile deep(deepForm(kDeep));
    EXPECT_TRUE(readOne(deep.name()).object()->IsArray());
    EXPECT_EQ(refusal(deepForm(10'000'001)), "nested deeper than 10000000 levels");
}

TEST(Input, GivesTheMessagesOfACaptureWithTheirBuffers)
{
    const TemporaryFile file("");
    const std::string form = formOf("[1]");
    const auto envelope = [](const mp::wstring& name) {
        return WIDE("{\"exchange_object_name\":\"exc_a\",\"binary\":true,\"exchange_object_data\":\"") + name +
               WIDE("\"}");
    };
    {
        capture::CaptureWriter writer(file.name(), true);
        writer.start("{}");
        writer.fromHost(WIDE("{\"command\":\"import\"}"));
        writer.buffer(WIDE("b1"), form.data(), form.size());
        writer.buffer(WIDE("b2"), "x", 1);
        writer.fromTranslator(envelope(WIDE("b1")));
        writer.fromTranslator(envelope(WIDE("b2")));
        writer.missingBuffer(WIDE("b3"));
        writer.fromTranslator(envelope(WIDE("b3")));
        writer.fromTranslator(WIDE("nonsense"));
        writer.unloadedBuffers({WIDE("b1")});
        writer.end("[]");
    }
    std::vector<std::string> lines;
    const input::Recording recording = input::readItems(file.name(), [&lines](input::Item& item) {
        lines.push_back(std::to_string(item.number) +
                        (item.sender == input::ESender::Host ? " host " : " translator ") +
                        std::to_string(static_cast<int>(item.buffer)) + (item.wasUnloaded ? " unloaded " : " ") +
                        (item.object() == nullptr ? "none" : textOf(*item.object())) + ' ' + item.damage);
    });
    EXPECT_THAT(lines, testing::ElementsAre(
                           "1 host 0 none ", "2 translator 1 unloaded [1] ",
                           "3 translator 3 none damaged binary form: Failed to parse all bytes of type",
                           "4 translator 2 none ", "5 translator 0 none no JSON: Invalid value. (line 1, column 2)"));
    EXPECT_TRUE(recording.isCapture && !recording.isCut);
    EXPECT_EQ(recording.start + recording.end, "{}[]");
}

} // namespace
