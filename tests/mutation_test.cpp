#include "tests/support/json_text.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/vrx_api_exchange_common.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <gtest/gtest.h>

#include <map>

using namespace vrx;
using test::parsed;
using test::written;

namespace
{

// A class with its full text. Under the governing key, if there is one, stands what decides about the other keys.
struct Subject
{
    std::string name;
    std::shared_ptr<IJsonObject> (*make)();
    std::string text;
    std::string governingKey;

    friend std::ostream& operator<<(std::ostream& stream, const Subject& subject) { return stream << subject.name; }
};

template <class T>
Subject subject(const char* name, const char* text, const char* governingKey = "")
{
    return {name, [] { return std::shared_ptr<IJsonObject>(std::make_shared<T>()); }, text, governingKey};
}

const Subject kSubjects[] = {
    subject<ExcMessage>("Message", R"({"message":"m"})"),
    subject<ExcLog>("Log", R"({"message":"m"})"),
    subject<ExcProgress>("Progress", R"({"progress":3,"progress_max":7,"stage":"s"})"),
    subject<ExcTransformation>("Transformation",
                               R"({"affine":[[2.0,0.0,0.0],[0.0,2.0,0.0],[0.0,0.0,2.0]],"translation":[1.0,2.0,3.0]})"),
    subject<ExcColor>("Color", R"({"rgb":[1,2,3],"alpha":4})", "rgb"),
    subject<ExcMiscProperty>("Property", R"({"name":"n","type":"integer","value":"1"})"),
    subject<ExcSubentId>("SubentId", R"({"type":"f","index":2})"),
    subject<ExcFullSubentPath>("Path",
                               R"({"block_references":["a","b"],"body_id":7,"subent_id":{"type":"f","index":2}})"),
    subject<ExcEntity>("EntityOfPath", R"({"type":"fsp","fsp":{"body_id":7,"subent_id":{"type":"f","index":2}}})",
                       "type"),
    subject<ExcEntity>("EntityOfAnOriginal", R"({"type":"original","description":"d","id":"i"})", "type"),
    subject<ExcBlockReference>(
        "BlockReference",
        R"({"guid":"g","persistent_id":"p","persistent_name":"q","block_id":5,"name":"n",)"
        R"("transformation":{"affine":[[2.0,0.0,0.0],[0.0,2.0,0.0],[0.0,0.0,2.0]],"translation":[1.0,2.0,3.0]},)"
        R"("color":{"rgb":[1,2,3],"alpha":4},"hidden":true,"suppressed":true,)"
        R"("misc_data":[{"name":"a","type":"integer","value":"1"}]})"),
    subject<ExcBlock>("Block",
                      R"({"id":5,"name":"n","storage_name":"s","world_orientation":"up_y",)"
                      R"("misc_data":[{"name":"a","type":"integer","value":"1"}],"is_part":true,)"
                      R"("block_references":[{"guid":"g","persistent_id":"","persistent_name":"","block_id":5,)"
                      R"("name":"n","transformation":{"affine":[[1.0,0.0,0.0],[0.0,1.0,0.0],[0.0,0.0,1.0]],)"
                      R"("translation":[0.0,0.0,0.0]},"color":null,"hidden":false,"suppressed":false}]})"),
    subject<ExcProductStructure>(
        "ProductStructure",
        R"({"product_name":"p","product_configuration_name":"c",)"
        R"("misc_data":[{"name":"a","type":"integer","value":"1"}],"units":"meter","world_orientation":"up_z",)"
        R"("blocks":[{"id":5,"name":"n","world_orientation":"up_y","is_part":true}],)"
        R"("root_block_references":[{"guid":"g","persistent_id":"","persistent_name":"","block_id":5,)"
        R"("name":"n","transformation":{"affine":[[1.0,0.0,0.0],[0.0,1.0,0.0],[0.0,0.0,1.0]],)"
        R"("translation":[0.0,0.0,0.0]},"color":null,"hidden":false,"suppressed":false}]})"),
};

class Mutation : public testing::TestWithParam<Subject>
{
};

std::string textOfValue(const JsonValue& value)
{
    JsonDocument document;
    document.CopyFrom(value, document.GetAllocator());
    return test::textOf(document);
}

// What an object writes, key by key.
std::map<std::string, std::string> membersOf(const IJsonObject& object)
{
    std::map<std::string, std::string> members;
    const JsonDocument document = parsed(written(object));
    if (document.IsObject())
    {
        for (const auto& member : document.GetObject())
        {
            members[mp::toNarrow(member.name.GetString())] = textOfValue(member.value);
        }
    }
    return members;
}

// Reads a document directly, and by way of its binary form.
std::shared_ptr<IJsonObject> readBothWays(const Subject& subject, const JsonDocument& document)
{
    auto object = subject.make();
    object->readObject(document);

    std::vector<char> form;
    JsonBinaryIO::write(form, document);
    JsonDocument decoded;
    JsonBinaryIO::read(form.data(), form.size(), decoded, decoded.GetAllocator());
    const auto other = subject.make();
    other->readObject(decoded);
    EXPECT_EQ(written(*object), written(*other));
    return object;
}

// Each kind of JSON, and values at the bounds of fields.
const char* const kReplacements[] = {"null",       "true",       "false",  "0",     "-1",
                                     "7",          "4294967296", "1.0",    "1e300", R"("")",
                                     R"("other")", "[]",         "[null]", "[1]",   "[1.0]",
                                     R"(["x"])",   "[[]]",       "[{}]",   "{}",    R"({"type":1,"rgb":{}})"};

TEST_P(Mutation, OfOneKeyLeavesTheOthers)
{
    const Subject& subject = GetParam();
    const auto whole = subject.make();
    test::readText(*whole, subject.text);
    ASSERT_EQ(written(*whole), subject.text) << "the text is not full";
    const auto wholeMembers = membersOf(*whole);
    const auto defaultMembers = membersOf(*subject.make());

    for (const auto& [key, unused] : wholeMembers)
    {
        const mp::wstring wideKey = test::wide(key);
        const auto check = [&, &changed = key](const JsonDocument& document, bool removed) {
            auto members = membersOf(*readBothWays(subject, document));
            if (changed == subject.governingKey)
            {
                return;
            }
            auto expected = wholeMembers;
            expected.erase(changed);
            if (removed && defaultMembers.count(changed) != 0)
            {
                EXPECT_EQ(members[changed], defaultMembers.at(changed)) << changed;
            }
            members.erase(changed);
            EXPECT_EQ(members, expected) << textOfValue(document);
        };

        JsonDocument removed = parsed(subject.text);
        removed.EraseMember(wideKey.c_str());
        check(removed, true);
        for (const char* const replacement : kReplacements)
        {
            JsonDocument replaced = parsed(subject.text);
            replaced[wideKey.c_str()].CopyFrom(parsed(replacement), replaced.GetAllocator());
            check(replaced, false);
        }
    }
}

TEST_P(Mutation, OfTheWholeValueLeavesTheDefault)
{
    const Subject& subject = GetParam();
    for (const char* const replacement : {"null", "true", "0", "1.5", "\"\"", "[]", "[{}]", "{}"})
    {
        EXPECT_EQ(written(*readBothWays(subject, parsed(replacement))), written(*subject.make())) << replacement;
    }
}

std::string nameOf(const testing::TestParamInfo<Subject>& info)
{
    return info.param.name;
}
INSTANTIATE_TEST_SUITE_P(Classes, Mutation, testing::ValuesIn(kSubjects), nameOf);

} // namespace
