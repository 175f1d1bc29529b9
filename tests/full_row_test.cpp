#include "tests/full_rows/full_rows.h"
#include "tests/support/helpers.h"
#include "tests/support/json_text.h"
#include "tests/support/log_capture.h"
#include "vrx_api/exchange/exchange_object_registry.h"
#include "vrx_api/exchange/json_binary_io.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <set>
#include <stdexcept>

using namespace vrx;
using test::FullRow;
using test::parsed;
using test::written;

namespace
{

class FullRows : public testing::TestWithParam<FullRow>
{
};

std::string textOfValue(const JsonValue& value)
{
    JsonDocument document;
    document.CopyFrom(value, document.GetAllocator());
    return test::textOf(document);
}

// The errors and warnings since the capture was made.
std::vector<std::string> problems(const test::LogCapture& log)
{
    std::vector<std::string> lines = log.lines("ERROR");
    const std::vector<std::string> warnings = log.lines("WARNING");
    lines.insert(lines.end(), warnings.begin(), warnings.end());
    return lines;
}

TEST_P(FullRows, ReadAndWritten)
{
    const FullRow& row = GetParam();
    const auto object = row.make();
    const test::LogCapture log;
    test::readText(*object, row.in);
    EXPECT_EQ(written(*object), row.out);
    EXPECT_EQ(problems(log), row.log);
}

// The texts of an object's members.
std::map<std::string, std::string> membersOf(const JsonDocument& document)
{
    std::map<std::string, std::string> members;
    if (document.IsObject())
    {
        for (const auto& member : document.GetObject())
        {
            members[mp::toNarrow(member.name.GetString())] = textOfValue(member.value);
        }
    }
    return members;
}

std::map<std::string, std::string> membersOf(const IJsonObject& object)
{
    return membersOf(parsed(written(object)));
}

std::optional<std::string> valueOf(const std::map<std::string, std::string>& members, const std::string& key)
{
    const auto found = members.find(key);
    return found == members.end() ? std::nullopt : std::optional(found->second);
}

// A fresh object that has read the governing keys alone.
std::shared_ptr<IJsonObject> fresh(const FullRow& row)
{
    JsonDocument document = parsed(row.in);
    for (const auto& [key, unused] : membersOf(document))
    {
        if (row.governing.count(key) == 0)
        {
            document.EraseMember(test::wide(key).c_str());
        }
    }
    auto object = row.make();
    if (!row.governing.empty())
    {
        object->readObject(document);
    }
    return object;
}

TEST_P(FullRows, HasOtherValuesThanAFreshObject)
{
    const FullRow& row = GetParam();
    const auto object = fresh(row);
    const auto members = membersOf(*object);
    for (const auto& [key, value] : membersOf(parsed(row.out)))
    {
        if (row.governing.count(key) == 0)
        {
            EXPECT_EQ(valueOf(members, key) == value, row.constant.count(key) != 0) << key;
        }
    }
}

// The elements of an array once more behind themselves.
void repeat(JsonValue& array, JsonAllocator& allocator)
{
    ASSERT_TRUE(array.IsArray());
    const rapidjson::SizeType size = array.Size();
    for (rapidjson::SizeType i = 0; i < size; ++i)
    {
        array.PushBack(JsonValue(array[i], allocator), allocator);
    }
}

bool holdsObjectsOrTexts(const JsonValue& value)
{
    return value.IsArray() && !value.Empty() && (value[0].IsObject() || value[0].IsString());
}

// The value under the keys of a path such as "textures/blending".
JsonValue& at(JsonValue& value, const std::string& path)
{
    const std::size_t end = path.find('/');
    JsonValue& member = value[test::wide(path.substr(0, end)).c_str()];
    return end == std::string::npos ? member : at(member, path.substr(end + 1));
}

// Arrays of objects and of texts are appended to; all else is replaced by the same.
std::string readTwice(const FullRow& row)
{
    JsonDocument document = parsed(row.out);
    JsonAllocator& allocator = document.GetAllocator();
    if (holdsObjectsOrTexts(document) && row.keeping.count("") == 0)
    {
        repeat(document, allocator);
    }
    if (document.IsObject())
    {
        for (auto& member : document.GetObject())
        {
            const std::string key = mp::toNarrow(member.name.GetString());
            if (holdsObjectsOrTexts(member.value) && row.keeping.count(key) + row.nested.count(key) == 0)
            {
                repeat(member.value, allocator);
            }
        }
    }
    for (const std::string& path : row.appending)
    {
        repeat(at(document, path), allocator);
    }
    return test::textOf(document);
}

TEST_P(FullRows, ReadTwice)
{
    const FullRow& row = GetParam();
    const auto object = row.make();
    test::readText(*object, row.in);
    test::readText(*object, row.in);
    EXPECT_EQ(written(*object), readTwice(row));
}

struct Reading
{
    std::shared_ptr<IJsonObject> object;
    bool refused = false;
};

Reading readInto(const FullRow& row, const JsonDocument& document)
{
    Reading reading{row.make()};
    try
    {
        reading.object->readObject(document);
    }
    catch (const std::invalid_argument& error)
    {
        EXPECT_TRUE(row.strict) << error.what();
        reading.refused = true;
    }
    return reading;
}

// What comes of a document by way of its binary form must be the same.
void checkBinaryForm(const FullRow& row, const JsonDocument& document, const Reading& reading)
{
    std::vector<char> form;
    JsonBinaryIO::write(form, document);
    JsonDocument decoded;
    JsonBinaryIO::read(form.data(), form.size(), decoded, decoded.GetAllocator());
    const Reading other = readInto(row, decoded);
    EXPECT_EQ(reading.refused, other.refused);
    EXPECT_EQ(written(*reading.object), written(*other.object));
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// What a class says of a value of another kind.
bool isAboutAKind(const std::string& line)
{
    return endsWith(line, " object should have a JSON object type.") ||
           endsWith(line, " object should have a JSON array type.");
}

// Only a nested class may say something of a wrong value: it stands as an object or as an array of numbers. The arrays
// of such classes are silent about what is no array.
bool maySayAKind(const JsonValue& full, const JsonValue& replacement)
{
    const bool isNested = full.IsObject() || (full.IsArray() && (full.Empty() || full[0].IsNumber()));
    const bool isArrayOfNested = full.IsArray() && !full.Empty() && !full[0].IsString();
    return isNested || (isArrayOfNested && replacement.IsArray());
}

// A value of another kind than a field's counts as none. A nested object takes a value of any kind.
bool isOfAnotherKind(const JsonValue& full, const JsonValue& replacement)
{
    if (full.IsNumber())
    {
        return !replacement.IsNumber() || full.IsDouble() != replacement.IsDouble();
    }
    if (full.IsBool())
    {
        return !replacement.IsBool();
    }
    return !full.IsObject() && full.GetType() != replacement.GetType();
}

class Mutation
{
public:
    explicit Mutation(const FullRow& row)
        : m_row(row)
        , m_full(parsed(row.in))
        , m_members(membersOf(parsed(row.out)))
        , m_default(membersOf(*fresh(row)))
    {
    }

    std::vector<std::string> keys() const
    {
        std::vector<std::string> keys;
        for (const auto& [key, unused] : membersOf(m_full))
        {
            keys.push_back(key);
        }
        return keys;
    }

    void remove(const std::string& key) const
    {
        JsonDocument document = parsed(m_row.in);
        document.EraseMember(test::wide(key).c_str());
        check(key, document, false, true);
    }

    void replace(const std::string& key, const char* text) const
    {
        const mp::wstring name = test::wide(key);
        const JsonDocument replacement = parsed(text);
        const JsonValue& full = m_full[name.c_str()];
        const bool isNested = m_row.nested.count(key) != 0;
        JsonDocument document = parsed(m_row.in);
        document[name.c_str()].CopyFrom(replacement, document.GetAllocator());
        check(key, document, isNested || maySayAKind(full, replacement),
              !isNested && isOfAnotherKind(full, replacement));
    }

private:
    // All keys but the changed one are read as ever; that one may be as if there were no such key.
    void check(const std::string& key, const JsonDocument& document, bool maySayAKind, bool isAsIfNone) const
    {
        const test::LogCapture log;
        const Reading reading = readInto(m_row, document);
        for (const std::string& line : problems(log))
        {
            EXPECT_TRUE(m_row.loud.count(key) != 0 || (maySayAKind && isAboutAKind(line)))
                << line << " for " << textOfValue(document);
        }
        checkBinaryForm(m_row, document, reading);
        if (reading.refused || m_row.governing.count(key) != 0)
        {
            return;
        }
        auto members = membersOf(*reading.object);
        if (isAsIfNone)
        {
            EXPECT_EQ(valueOf(members, key), valueOf(m_default, key)) << textOfValue(document);
        }
        auto expected = m_members;
        expected.erase(key);
        members.erase(key);
        EXPECT_EQ(members, expected) << textOfValue(document);
    }

    const FullRow& m_row;
    const JsonDocument m_full;
    const std::map<std::string, std::string> m_members;
    const std::map<std::string, std::string> m_default;
};

// Each kind of JSON, and values at the bounds of fields.
const char* const kReplacements[] = {"null",       "true",       "false",  "0",     "-1",
                                     "7",          "4294967296", "1.0",    "1e300", R"("")",
                                     R"("other")", "[]",         "[null]", "[1]",   "[1.0]",
                                     R"(["x"])",   "[[]]",       "[{}]",   "{}",    R"({"type":1,"rgb":{}})"};

TEST_P(FullRows, AChangeOfOneKeyLeavesTheOthers)
{
    const Mutation mutation(GetParam());
    for (const std::string& key : mutation.keys())
    {
        mutation.remove(key);
        for (const char* const replacement : kReplacements)
        {
            mutation.replace(key, replacement);
        }
    }
}

TEST_P(FullRows, AnotherKindOfValueLeavesTheDefault)
{
    const FullRow& row = GetParam();
    const JsonDocument full = parsed(row.in);
    for (const char* const text : {"null", "true", "0", "1.5", "\"\"", "[]", "[{}]", "{}"})
    {
        const JsonDocument document = parsed(text);
        if (document.GetType() == full.GetType())
        {
            continue;
        }
        const test::LogCapture log;
        const Reading reading = readInto(row, document);
        EXPECT_EQ(problems(log),
                  row.ofOtherKind.empty() ? std::vector<std::string>() : std::vector<std::string>{row.ofOtherKind})
            << text;
        checkBinaryForm(row, document, reading);
        EXPECT_EQ(written(*reading.object), written(*row.make())) << text;
    }
}

TEST(FullRowsOfAll, HaveARowForEachExchangeClass)
{
    std::set<wstring> names;
    for (const FullRow& row : test::allFullRows())
    {
        if (const auto object = std::dynamic_pointer_cast<IExchangeObject>(row.make()))
        {
            names.insert(object->objectName());
        }
    }
    EXPECT_EQ(std::vector<wstring>(names.begin(), names.end()), ExchangeObjectRegistry::instance().names());
}

std::string nameOf(const testing::TestParamInfo<FullRow>& info)
{
    return test::testName(info.param.title);
}
INSTANTIATE_TEST_SUITE_P(Classes, FullRows, testing::ValuesIn(test::allFullRows()), nameOf);

} // namespace
