#include "tests/support/helpers.h"
#include "tests/support/json_text.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/exchange/progress.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <sstream>
#include <stdexcept>

using namespace vrx;
using test::bytes;
using test::parsed;
using test::textOf;

namespace
{

// {"a":1,"b":[true,"x"]}
const std::string kExample = bytes("03000000 4200000000000000"
                                   "05000000 0100000000000000 6100"
                                   "06000000 01000000"
                                   "05000000 0100000000000000 6200"
                                   "04000000 1200000000000000"
                                   "02000000"
                                   "05000000 0100000000000000 7800");

std::string encoded(const JsonValue& value)
{
    std::ostringstream stream;
    JsonBinaryIO::write(stream, value);
    std::vector<char> form;
    JsonBinaryIO::write(form, value);
    EXPECT_TRUE(std::string(form.begin(), form.end()) == stream.str());
    return stream.str();
}

// Decodes both from a stream and from memory, which must end alike.
JsonDocument decoded(const std::string& form, std::string* failure = nullptr)
{
    const auto thrownBy = [](auto read) -> std::string {
        try
        {
            read();
        }
        catch (const std::logic_error& error)
        {
            const bool length = dynamic_cast<const std::length_error*>(&error) != nullptr;
            return (length ? "length_error: " : "invalid_argument: ") + std::string(error.what());
        }
        return {};
    };
    JsonDocument streamed;
    const std::string byStream = thrownBy([&] {
        std::istringstream stream(form);
        JsonBinaryIO::read(stream, streamed, streamed.GetAllocator());
    });
    JsonDocument document;
    const std::string byMemory = thrownBy([&] {
        // A copy of the exact size, so that a sanitizer sees what is read behind the end.
        const std::vector<char> exact(form.begin(), form.end());
        JsonBinaryIO::read(exact.data(), exact.size(), document, document.GetAllocator());
    });
    EXPECT_EQ(byStream, byMemory);
    EXPECT_TRUE(failure != nullptr || byMemory.empty()) << byMemory;
    if (failure != nullptr)
    {
        *failure = byMemory;
    }
    return document;
}

struct Form
{
    const char* text;
    const char* hex;
};

TEST(BinaryForm, IsWrittenAndReadAsItStands)
{
    EXPECT_EQ(kExample.size(), 78U);
    EXPECT_EQ(encoded(parsed(R"({"a":1,"b":[true,"x"]})")), kExample);
    EXPECT_EQ(textOf(decoded(kExample)), R"({"a":1,"b":[true,"x"]})");

    const Form forms[] = {
        {"null", "00000000"},
        {"false", "01000000"},
        {"true", "02000000"},
        {"{}", "03000000 0000000000000000"},
        {"[]", "04000000 0000000000000000"},
        {R"("")", "05000000 0000000000000000"},
        {R"("a\u0000b")", "05000000 0300000000000000 610000006200"},
        {"5", "06000000 05000000"},
        {"-1", "06000000 FFFFFFFF"},
        {"-2147483648", "06000000 00000080"},
        {"2147483647", "06000000 FFFFFF7F"},
        {"2147483648", "07000000 00000080"},
        {"3000000000", "07000000 005ED0B2"},
        {"4294967296", "08000000 0000000001000000"},
        {"-2147483649", "08000000 FFFFFF7FFFFFFFFF"},
        {"9223372036854775807", "08000000 FFFFFFFFFFFFFF7F"},
        {"9223372036854775808", "09000000 0000000000000080"},
        {"18446744073709551615", "09000000 FFFFFFFFFFFFFFFF"},
        {"1.5", "0A000000 000000000000F83F"},
        {"1.0", "0A000000 000000000000F03F"},
        {"[[],{}]", "04000000 1800000000000000 04000000 0000000000000000 03000000 0000000000000000"},
    };
    for (const Form& form : forms)
    {
        EXPECT_EQ(encoded(parsed(form.text)), bytes(form.hex)) << form.text;
        EXPECT_EQ(textOf(decoded(bytes(form.hex))), form.text);
    }
}

TEST(BinaryForm, KeepsTheBitsOfADouble)
{
    for (const char* const bits : {"010000000000F87F", "FF00000000ADF47F", "000000000000F0FF", "0000000000000080"})
    {
        const std::string form = bytes("0A000000") + bytes(bits);
        EXPECT_EQ(encoded(decoded(form)), form) << bits;
    }
}

struct Failure
{
    const char* hex;
    const char* text;
};

TEST(BinaryForm, TellsWhatIsMissing)
{
    const char* const noType = "length_error: Failed to parse all bytes of type";
    const char* const noNumber = "length_error: Failed to read all the number of bytes";
    const char* const noString = "length_error: Failed to read all the bytes of string";
    const char* const noArray = "length_error: Failed to read all the bytes of array";
    const char* const unknown = "invalid_argument: Unknown value type";
    const Failure failures[] = {
        {"", noType},
        {"030000", noType},
        {"0B000000", unknown},
        {"FFFFFFFF", unknown},
        {"1F8B0800", unknown},
        {"06000000", noNumber},
        {"07000000 010203", noNumber},
        {"08000000 01020304050607", noNumber},
        {"0A000000", noNumber},
        {"03000000 010000", noNumber},
        {"05000000 010000", noNumber},
        {"05000000 0200000000000000 610062", noString},
        {"03000000 0100000000000000", noArray},
        {"04000000 0500000000000000 00000000", noArray},
        // Sizes that lie: the largest, and one whose double wraps around.
        {"04000000 FFFFFFFFFFFFFFFF 00000000", noArray},
        {"03000000 00000000FFFFFF7F 00000000", noArray},
        {"05000000 FFFFFFFFFFFFFFFF 6100", noString},
        {"05000000 0100000000000080 6100", noString},
        {"05000000 0000000001000000 6100", noString},
        // A nested value that runs past the end of what encloses it, though the bytes go on behind.
        {"04000000 0300000000000000 00000000 00000000", noType},
        {"04000000 0600000000000000 06000000 01000000", noNumber},
        {"04000000 0C00000000000000 05000000 0100000000000000 6100", noString},
        {"04000000 0C00000000000000 04000000 0400000000000000 00000000", noArray},
        // A name without a value.
        {"03000000 0E00000000000000 05000000 0100000000000000 6100 02000000", noType},
        {"03000000 0400000000000000 00000000", noType},
    };
    for (const Failure& failure : failures)
    {
        std::string thrown;
        decoded(bytes(failure.hex), &thrown);
        EXPECT_EQ(thrown, failure.text) << failure.hex;
    }
}

TEST(BinaryForm, CutAnywhereItThrows)
{
    for (std::size_t size = 0; size < kExample.size(); ++size)
    {
        std::string thrown;
        decoded(kExample.substr(0, size), &thrown);
        EXPECT_EQ(thrown.rfind("length_error: Failed to ", 0), 0U) << size;
    }
}

TEST(BinaryForm, SurvivesEveryChangeOfAByte)
{
    for (std::size_t at = 0; at < kExample.size(); ++at)
    {
        for (const int change : {0x01, 0x02, 0x04, 0x0F, 0x80, 0xFF})
        {
            std::string form = kExample;
            form[at] = static_cast<char>(form[at] ^ change);
            std::string thrown;
            const JsonDocument document = decoded(form, &thrown);
            if (thrown.empty())
            {
                // What can be read is written again as it was read.
                const std::string again = encoded(document);
                EXPECT_EQ(encoded(decoded(again)), again);
            }
        }
    }
}

TEST(BinaryForm, KeepsWhatWasReadBeforeAFailure)
{
    std::string thrown;
    EXPECT_EQ(textOf(decoded(bytes("04000000 0800000000000000 02000000 0B000000"), &thrown)), "[true]");
    EXPECT_EQ(textOf(decoded(bytes("04000000 1400000000000000 01000000"
                                   "04000000 0400000000000000 0B000000"),
                             &thrown)),
              "[false]");
    EXPECT_EQ(textOf(decoded(kExample.substr(0, 26) + bytes("0B000000") + kExample.substr(30), &thrown)), "{}");
    EXPECT_EQ(textOf(decoded(bytes("03000000"), &thrown)), "{}");
    EXPECT_EQ(thrown, "length_error: Failed to read all the number of bytes");
    EXPECT_EQ(textOf(decoded(bytes("04000000 0900000000000000"), &thrown)), "[]");
    EXPECT_EQ(thrown, "length_error: Failed to read all the bytes of array");

    // A root that was not even begun leaves the value as it was.
    for (const char* const hex : {"", "0B000000", "06000000"})
    {
        const std::string form = bytes(hex);
        JsonDocument document = parsed("[7]");
        EXPECT_THROW(JsonBinaryIO::read(form.data(), form.size(), document, document.GetAllocator()), std::logic_error);
        EXPECT_EQ(textOf(document), "[7]") << hex;
    }
}

TEST(BinaryForm, AValueEndsWhereItEnds)
{
    std::istringstream stream(kExample + bytes("06000000 07000000") + "rest");
    JsonDocument document;
    JsonBinaryIO::read(stream, document, document.GetAllocator());
    EXPECT_EQ(textOf(document), R"({"a":1,"b":[true,"x"]})");
    JsonBinaryIO::read(stream, document, document.GetAllocator());
    EXPECT_EQ(document.GetInt(), 7);
    std::string rest;
    stream >> rest;
    EXPECT_EQ(rest, "rest");
}

TEST(BinaryForm, CarriesAnyValueInAKeysPlace)
{
    // A scalar of each kind, an array and an object, each as the name of a null; then "progress": 5
    const std::string odd = bytes("00000000 00000000"
                                  "02000000 00000000"
                                  "06000000 01000000 00000000"
                                  "0A000000 000000000000F83F 00000000"
                                  "04000000 0400000000000000 02000000 00000000"
                                  "03000000 0000000000000000 00000000");
    const std::string progress = bytes("05000000 0800000000000000 70007200 6F006700 72006500 73007300"
                                       "06000000 05000000");
    const std::string members = odd + progress;
    std::string form = bytes("03000000 0000000000000000") + members;
    form[4] = static_cast<char>(members.size());

    const JsonDocument document = decoded(form);
    ASSERT_TRUE(document.IsObject());
    EXPECT_EQ(document.MemberCount(), 7U);
    EXPECT_EQ(encoded(document), form);
    ExcProgress object;
    object.readObject(document);
    EXPECT_EQ(object.progress(), 5);
    EXPECT_EQ(object.progressMax(), 100);
}

// Containers around a null. A size is that of all that stands inside.
std::string nested(std::size_t levels, const std::string& tag, const std::string& name)
{
    const std::uint64_t level = tag.size() + sizeof(std::uint64_t) + name.size();
    std::string form;
    for (std::uint64_t inside = levels; inside > 0; --inside)
    {
        const std::uint64_t size = (inside - 1) * level + name.size() + 4;
        char sizeBytes[sizeof(size)];
        std::memcpy(sizeBytes, &size, sizeof(size));
        form += tag;
        form.append(sizeBytes, sizeof(size));
        form += name;
    }
    return form + bytes("00000000");
}

TEST(BinaryForm, TakesAMillionLevels)
{
    const std::size_t levels = 1000000;
    const std::string null = bytes("00000000");
    for (const std::string& form : {nested(levels, bytes("04000000"), ""), nested(levels, bytes("03000000"), null)})
    {
        EXPECT_TRUE(encoded(decoded(form)) == form);

        // The innermost value is unknown; the outermost container is all that was complete.
        std::string damaged = form;
        damaged[damaged.size() - 4] = 11;
        std::string thrown;
        EXPECT_LE(encoded(decoded(damaged, &thrown)).size(), form.size());
        EXPECT_EQ(thrown, "invalid_argument: Unknown value type");
    }

    const JsonDocument arrays = decoded(nested(levels, bytes("04000000"), ""));
    const std::string text = textOf(arrays);
    EXPECT_TRUE(text == std::string(levels, '[') + "null" + std::string(levels, ']'));
}

} // namespace
