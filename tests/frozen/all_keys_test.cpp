#include "mp/narrow.h"
#include "tests/frozen/frozen_files.h"
#include "vrx_api/exchange/exchange_object_registry.h"
#include "vrx_api/json/shape.h"
#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_ferrant_info.h"

#include <gtest/gtest.h>

#include <set>

using namespace vrx;

namespace
{

using Keys = std::set<std::string>;

std::string keyOf(const ClassShape& owner, const FieldShape& field)
{
    return owner.name() + '.' + mp::toNarrow(field.key);
}

// Walks over the values of a message, and notes the keys that it finds.
void noteKeys(const Shape& shape, const JsonValue& value, const JsonValue& holder, const ClassShape& owner, Keys& keys)
{
    switch (shape.kind)
    {
    case EShape::Record:
        for (const FieldShape& field : shape.fields)
        {
            const auto member = value.FindMember(mp::wstring(field.key).c_str());
            if (member != value.MemberEnd())
            {
                keys.insert(keyOf(owner, field));
                noteKeys(field.shape, member->value, value, owner, keys);
            }
        }
        break;
    case EShape::Map:
    case EShape::List:
        if (value.IsArray())
        {
            for (const JsonValue& element : value.GetArray())
            {
                noteKeys(shape.parts.at(0), element, value, owner, keys);
            }
        }
        else if (value.IsObject())
        {
            for (const auto& member : value.GetObject())
            {
                noteKeys(shape.parts.at(0), member.value, value, owner, keys);
            }
        }
        break;
    case EShape::Class:
    case EShape::OneOf:
        if (const std::type_info* const type = shape.choose ? shape.choose(value, holder) : shape.classes.at(0))
        {
            const ClassShape& chosen = *ClassShape::find(*type);
            noteKeys(chosen.shape(), value, holder, chosen, keys);
        }
        break;
    default:
        break;
    }
}

// All keys that may stand in a message of this class.
void listKeys(const Shape& shape, const ClassShape& owner, std::set<const ClassShape*>& walked, Keys& keys)
{
    for (const FieldShape& field : shape.fields)
    {
        keys.insert(keyOf(owner, field));
        listKeys(field.shape, owner, walked, keys);
    }
    for (const Shape& part : shape.parts)
    {
        listKeys(part, owner, walked, keys);
    }
    for (const std::type_info* const type : shape.classes)
    {
        const ClassShape* const inner = ClassShape::find(*type);
        if (walked.insert(inner).second)
        {
            listKeys(inner->shape(), *inner, walked, keys);
        }
    }
}

TEST(FrozenFiles, HaveEachKeyOfEachClassThatCrosses)
{
    Keys seen;
    Keys all;
    std::set<const ClassShape*> walked;
    const auto add = [&](const std::type_info& type, const std::vector<std::string>& files) {
        const ClassShape& shape = *ClassShape::find(type);
        listKeys(shape.shape(), shape, walked, all);
        for (const std::string& file : files)
        {
            const std::filesystem::path path = std::filesystem::path(VRX_API_FROZEN_DATA) / (file + ".json");
            if (std::filesystem::exists(path))
            {
                const JsonDocument document = test::treeOfUtf8(test::contentOf(path));
                noteKeys(shape.shape(), document, document, shape, seen);
            }
        }
    };
    for (const wstring& wideName : ExchangeObjectRegistry::instance().names())
    {
        const auto object = ExchangeObjectRegistry::instance().get(wideName);
        const std::string name = mp::toNarrow(wideName);
        add(typeOf(*object), {name, name + ".written", name + "_2"});
    }
    add(typeid(Command),
        {"command_ping", "command_import", "command_export", "command_legacy_import", "command_legacy_export"});
    add(typeid(Result), {"result"});
    add(typeid(FerrantInfo), {"ferrant_info"});
    for (const std::string& key : all)
    {
        EXPECT_EQ(seen.count(key), 1U) << key
                                       << " is in no file of tests/data/frozen: add a second text of its object.";
    }
}

} // namespace
