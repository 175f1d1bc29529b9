#include "schema/schema.h"

#include "classes/class_named.h"
#include "json/utf.h"
#include "mp/narrow.h"
#include "schema/descriptions.h"
#include "vrx_api/command/command.h"
#include "vrx_api/command/result.h"
#include "vrx_api/exchange/envelope_keys.h"
#include "vrx_api/exchange/exchange_object_registry.h"
#include "vrx_api/exchange/exchange_object_wrapper.h"
#include "vrx_api/info/ferrant_info.h"
#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/manufacturing/mfg_pattern_circular.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <set>
#include <typeinfo>
#include <utility>
#include <vector>

namespace schema
{

namespace
{

using mp::wstring;
using mp::wstring_view;
using vrx::ClassShape;
using vrx::EShape;
using vrx::FieldShape;
using vrx::JsonAllocator;
using vrx::JsonDocument;
using vrx::JsonValue;
using vrx::Shape;

wstring_view keyOf(vrx::Key key)
{
    return {key.text, key.size};
}

// An object with these keys is of this class.
struct Kind
{
    std::vector<wstring_view> keys;
    const std::type_info* type;
};

bool isOfPatterns(const std::vector<const ClassShape*>& classes)
{
    const ClassShape* const pattern = ClassShape::find(typeid(vrx::ExcMfgPatternCircular));
    return std::find(classes.begin(), classes.end(), pattern) != classes.end();
}

class Maker
{
public:
    Maker()
    {
        for (const wstring& name : vrx::ExchangeObjectRegistry::instance().names())
        {
            m_wireNames[classes::ofObject(name)] = name;
        }
    }

    /// Begins the document.
    void begin(const std::string& title)
    {
        m_root.SetObject();
        add(m_root, WIDE("$schema"), text("https://json-schema.org/draft/2020-12/schema"));
        add(m_root, WIDE("title"), text(title));
        add(m_root, WIDE("$comment"),
            text("A number whose type is \"number\" is written with a fraction, 1.0 for one, and an \"integer\" "
                 "without: "
                 "a reader does not take the other. Readers skip keys that they do not know, so that all objects are "
                 "open. A description tells keys that are only read or only written."));
    }

    JsonValue reference(const ClassShape& shape)
    {
        m_needed.insert(&shape);
        JsonValue made(rapidjson::kObjectType);
        add(made, WIDE("$ref"), text("#/$defs/" + definitionName(shape)));
        return made;
    }

    /// Of several kinds an object is the first whose keys it has, or none.
    void addChoice(JsonValue& to, const std::vector<Kind>& kinds)
    {
        JsonValue rest(false);
        for (auto kind = kinds.rbegin(); kind != kinds.rend(); ++kind)
        {
            JsonValue condition(rapidjson::kObjectType);
            require(condition, kind->keys);
            JsonValue choice(rapidjson::kObjectType);
            add(choice, WIDE("if"), std::move(condition));
            add(choice, WIDE("then"), reference(*ClassShape::find(*kind->type)));
            add(choice, WIDE("else"), std::move(rest));
            rest = std::move(choice);
        }
        for (auto& member : rest.GetObject())
        {
            to.AddMember(member.name, member.value, allocator());
        }
    }

    JsonDocument& root() { return m_root; }

    void add(JsonValue& object, wstring_view key, JsonValue value)
    {
        JsonValue name(key.data(), static_cast<rapidjson::SizeType>(key.size()), allocator());
        object.AddMember(name, value, allocator());
    }

    JsonAllocator& allocator() { return m_root.GetAllocator(); }

    /// Ends the document with the definitions that were referred to.
    std::string end()
    {
        std::map<std::string, JsonValue> made;
        std::set<const ClassShape*> known;
        for (std::vector<const ClassShape*> added = news(known); !added.empty(); added = news(known))
        {
            for (const ClassShape* const shape : added)
            {
                made.emplace(definitionName(*shape), definition(*shape));
            }
        }
        JsonValue definitions(rapidjson::kObjectType);
        for (auto& [name, value] : made)
        {
            add(definitions, mp::toWide(name), std::move(value));
        }
        add(m_root, WIDE("$defs"), std::move(definitions));
        mp::wostringstream stream;
        vrx::JsonTextIO::write(stream, m_root, true);
        return json::toUtf8(stream.str());
    }

private:
    JsonValue text(const std::string& characters)
    {
        const wstring wide = mp::toWide(characters);
        return JsonValue(wide.data(), static_cast<rapidjson::SizeType>(wide.size()), allocator());
    }

    JsonValue text(wstring_view characters)
    {
        return JsonValue(characters.data(), static_cast<rapidjson::SizeType>(characters.size()), allocator());
    }

    /// The classes that are needed and not known, which become known.
    std::vector<const ClassShape*> news(std::set<const ClassShape*>& known) const
    {
        std::vector<const ClassShape*> added;
        for (const ClassShape* const shape : m_needed)
        {
            if (known.insert(shape).second)
            {
                added.push_back(shape);
            }
        }
        return added;
    }

    JsonValue definition(const ClassShape& shape)
    {
        JsonValue made = ofShape(shape.shape());
        const auto wireName = m_wireNames.find(&shape);
        if (wireName != m_wireNames.end())
        {
            add(made, WIDE("description"), text("The exchange object " + mp::toNarrow(wireName->second) + "."));
        }
        if (&shape == ClassShape::find(typeid(vrx::ExchangeObjectWrapper)))
        {
            add(made, WIDE("allOf"), rulesOfEnvelope());
        }
        if (&shape == ClassShape::find(typeid(vrx::Command)))
        {
            add(made, WIDE("allOf"), rulesOfCommand());
        }
        return made;
    }

    JsonValue ofType(const char* name)
    {
        JsonValue made(rapidjson::kObjectType);
        add(made, WIDE("type"), text(std::string(name)));
        return made;
    }

    template <class T>
    JsonValue integer()
    {
        JsonValue made = ofType("integer");
        add(made, WIDE("minimum"), JsonValue(std::numeric_limits<T>::min()));
        add(made, WIDE("maximum"), JsonValue(std::numeric_limits<T>::max()));
        return made;
    }

    JsonValue names(const std::vector<wstring_view>& all)
    {
        JsonValue list(rapidjson::kArrayType);
        for (const wstring_view name : all)
        {
            list.PushBack(text(name), allocator());
        }
        JsonValue made(rapidjson::kObjectType);
        add(made, WIDE("enum"), std::move(list));
        return made;
    }

    void addSize(JsonValue& array, std::size_t size)
    {
        add(array, WIDE("minItems"), JsonValue(static_cast<std::uint64_t>(size)));
        add(array, WIDE("maxItems"), JsonValue(static_cast<std::uint64_t>(size)));
    }

    JsonValue ofShape(const Shape& shape)
    {
        JsonValue made = withoutNull(shape);
        if (!shape.mayBeNull)
        {
            return made;
        }
        JsonValue choice(rapidjson::kArrayType);
        choice.PushBack(made, allocator());
        choice.PushBack(ofType("null"), allocator());
        JsonValue either(rapidjson::kObjectType);
        add(either, WIDE("anyOf"), std::move(choice));
        return either;
    }

    JsonValue withoutNull(const Shape& shape)
    {
        switch (shape.kind)
        {
        case EShape::Boolean:
            return ofType("boolean");
        case EShape::Int32:
            return integer<std::int32_t>();
        case EShape::Uint32:
            return integer<std::uint32_t>();
        case EShape::Uint64:
            return integer<std::uint64_t>();
        case EShape::Double:
            return ofType("number");
        case EShape::Text:
            return ofType("string");
        case EShape::Name:
            return names(shape.names);
        case EShape::Record:
            return ofRecord(shape);
        case EShape::Map:
            return ofMap(shape);
        case EShape::List:
            return ofList(shape);
        case EShape::Tuple:
            return ofTuple(shape);
        case EShape::Class:
        case EShape::OneOf:
            return ofClasses(shape);
        default:
            return JsonValue(rapidjson::kObjectType);
        }
    }

    JsonValue ofRecord(const Shape& shape)
    {
        JsonValue properties(rapidjson::kObjectType);
        JsonValue required(rapidjson::kArrayType);
        for (const FieldShape& field : shape.fields)
        {
            JsonValue made = ofShape(field.shape);
            const std::string description = describe(field);
            if (!description.empty())
            {
                add(made, WIDE("description"), text(description));
            }
            add(properties, field.key, std::move(made));
            if (field.isRequired)
            {
                required.PushBack(text(field.key), allocator());
            }
        }
        JsonValue made = ofType("object");
        add(made, WIDE("properties"), std::move(properties));
        if (!required.Empty())
        {
            add(made, WIDE("required"), std::move(required));
        }
        return made;
    }

    JsonValue ofMap(const Shape& shape)
    {
        JsonValue made = ofType("object");
        if (!shape.names.empty())
        {
            add(made, WIDE("propertyNames"), names(shape.names));
        }
        add(made, WIDE("additionalProperties"), ofShape(shape.parts.front()));
        return made;
    }

    JsonValue ofList(const Shape& shape)
    {
        JsonValue made = ofType("array");
        add(made, WIDE("items"), ofShape(shape.parts.front()));
        if (shape.size != 0)
        {
            addSize(made, shape.size);
        }
        return made;
    }

    JsonValue ofTuple(const Shape& shape)
    {
        JsonValue items(rapidjson::kArrayType);
        for (const Shape& part : shape.parts)
        {
            items.PushBack(ofShape(part), allocator());
        }
        JsonValue made = ofType("array");
        add(made, WIDE("prefixItems"), std::move(items));
        addSize(made, shape.parts.size());
        return made;
    }

    JsonValue ofClasses(const Shape& shape)
    {
        std::vector<const ClassShape*> found;
        for (const std::type_info* const type : shape.classes)
        {
            const ClassShape* const each = ClassShape::find(*type);
            if (each != nullptr)
            {
                found.push_back(each);
            }
        }
        if (found.size() == 1)
        {
            return reference(*found.front());
        }
        JsonValue choice(rapidjson::kArrayType);
        for (const ClassShape* const each : found)
        {
            choice.PushBack(reference(*each), allocator());
        }
        if (isOfPatterns(found))
        {
            // A pattern of this type is none.
            choice.PushBack(whereJust(WIDE("type"), text(wstring_view(WIDE("none")))), allocator());
        }
        JsonValue made(rapidjson::kObjectType);
        add(made, WIDE("anyOf"), std::move(choice));
        return made;
    }

    // An object of properties, for a condition.
    JsonValue where(wstring_view key, JsonValue value)
    {
        JsonValue properties(rapidjson::kObjectType);
        add(properties, key, std::move(value));
        JsonValue made(rapidjson::kObjectType);
        add(made, WIDE("properties"), std::move(properties));
        return made;
    }

    JsonValue constant(JsonValue value)
    {
        JsonValue made(rapidjson::kObjectType);
        add(made, WIDE("const"), std::move(value));
        return made;
    }

    void require(JsonValue& object, const std::vector<wstring_view>& keys)
    {
        JsonValue wanted(rapidjson::kArrayType);
        for (const wstring_view key : keys)
        {
            wanted.PushBack(text(key), allocator());
        }
        add(object, WIDE("required"), std::move(wanted));
    }

    // An object that has this key with this value.
    JsonValue whereJust(wstring_view key, JsonValue value)
    {
        JsonValue made = where(key, constant(std::move(value)));
        require(made, {key});
        return made;
    }

    void addRule(JsonValue& rules, JsonValue condition, JsonValue then)
    {
        JsonValue rule(rapidjson::kObjectType);
        add(rule, WIDE("if"), std::move(condition));
        add(rule, WIDE("then"), std::move(then));
        rules.PushBack(rule, allocator());
    }

    // The object itself stands in the message, or the name of its buffer.
    JsonValue rulesOfEnvelope()
    {
        JsonValue rules(rapidjson::kArrayType);
        JsonValue bufferName = ofType("string");
        add(bufferName, WIDE("minLength"), JsonValue(1));
        addRule(rules, whereJust(keyOf(vrx::kEnvelopeBinary), JsonValue(true)),
                where(keyOf(vrx::kEnvelopeData), std::move(bufferName)));
        for (const wstring& name : vrx::ExchangeObjectRegistry::instance().names())
        {
            JsonValue condition = where(keyOf(vrx::kEnvelopeName), constant(text(wstring_view(name))));
            add(condition[WIDE("properties")], keyOf(vrx::kEnvelopeBinary), constant(JsonValue(false)));
            addRule(rules, std::move(condition), where(keyOf(vrx::kEnvelopeData), reference(*classes::ofObject(name))));
        }
        return rules;
    }

    // The class of the options follows from the command and the interface.
    JsonValue rulesOfCommand()
    {
        struct Row
        {
            wstring_view command;
            const char* options;
            const char* legacyOptions;
        };
        constexpr Row kRows[] = {
            {WIDE("import"), "ImportOptionsImpl", "LegacyImportOptionsImpl"},
            {WIDE("export"), "ExportOptionsImpl", "LegacyExportOptionsImpl"},
        };
        JsonValue rules(rapidjson::kArrayType);
        for (const Row& row : kRows)
        {
            const auto options = [this](const char* name) {
                return where(WIDE("options"), reference(*ClassShape::find(std::string(name))));
            };
            JsonValue then(rapidjson::kObjectType);
            add(then, WIDE("if"), whereJust(WIDE("ferrant_interface"), text(wstring_view(WIDE("legacy")))));
            add(then, WIDE("then"), options(row.legacyOptions));
            add(then, WIDE("else"), options(row.options));
            require(then, {WIDE("options")});
            addRule(rules, whereJust(WIDE("command"), text(row.command)), std::move(then));
        }
        return rules;
    }

    JsonDocument m_root;
    std::map<const ClassShape*, wstring> m_wireNames;
    std::set<const ClassShape*> m_needed;
};

} // namespace

std::string ofMessages()
{
    Maker maker;
    maker.begin("Messages between a host and a translator");
    maker.addChoice(maker.root(), {{{keyOf(vrx::kEnvelopeName)}, &typeid(vrx::ExchangeObjectWrapper)},
                                   {{WIDE("command")}, &typeid(vrx::Command)},
                                   {{WIDE("code")}, &typeid(vrx::Result)},
                                   {{WIDE("name"), WIDE("version")}, &typeid(vrx::FerrantInfo)}});
    for (const ClassShape* const shape : ClassShape::all())
    {
        maker.reference(*shape);
    }
    return maker.end();
}

std::string ofClass(const ClassShape& shape)
{
    Maker maker;
    maker.begin(shape.name());
    JsonValue own = maker.reference(shape);
    maker.add(maker.root(), WIDE("$ref"), std::move(own[WIDE("$ref")]));
    return maker.end();
}

} // namespace schema
