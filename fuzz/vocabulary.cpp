#include "fuzz/vocabulary.h"

#include "fuzz/support.h"
#include "tests/support/form_changes.h"

namespace fuzz
{

using vrx::EShape;
using vrx::JsonAllocator;
using vrx::JsonDocument;
using vrx::JsonValue;
using vrx::Shape;
using vrx::wstring_view;

namespace
{

constexpr int kMostDepth = 3;

bool isOfKind(const JsonValue& value, EShape kind)
{
    switch (kind)
    {
    case EShape::Boolean:
        return value.IsBool();
    case EShape::Int32:
        return value.IsInt();
    case EShape::Uint32:
        return value.IsUint();
    case EShape::Uint64:
        return value.IsUint64();
    case EShape::Double:
        return value.IsDouble();
    default:
        return true;
    }
}

JsonValue anyOfKind(EShape kind, Random& random, JsonAllocator& allocator)
{
    JsonValue value;
    do
    {
        value = anyValue(random, allocator);
    } while (!isOfKind(value, kind));
    return value;
}

} // namespace

JsonValue textValue(wstring_view text, JsonAllocator& allocator)
{
    // An empty view may be one of nothing, which RapidJSON would copy.
    return JsonValue(text.empty() ? WIDE("") : text.data(), static_cast<rapidjson::SizeType>(text.size()), allocator);
}

JsonValue copyOf(const JsonValue& value, JsonAllocator& allocator)
{
    const vrx::Bytes form = encoded(value);
    JsonValue copy;
    vrx::JsonBinaryIO::read(form.data(), form.size(), copy, allocator);
    return copy;
}

JsonValue anyValue(Random& random, JsonAllocator& allocator)
{
    static const JsonDocument samples = [] {
        test::FormValue all{vrx::BinaryTag::Array, {}, test::sampleValues()};
        std::string form;
        append(form, all);
        JsonDocument tree;
        require(decodes(form.data(), form.size(), tree));
        return tree;
    }();
    return copyOf(samples[static_cast<rapidjson::SizeType>(random() % samples.Size())], allocator);
}

const Vocabulary& Vocabulary::instance()
{
    static const Vocabulary vocabulary;
    return vocabulary;
}

Vocabulary::Vocabulary()
{
    for (const vrx::ClassShape* const shape : vrx::ClassShape::all())
    {
        add(shape->shape());
    }
}

void Vocabulary::add(const Shape& shape)
{
    m_words.insert(m_words.end(), shape.names.begin(), shape.names.end());
    for (const vrx::FieldShape& field : shape.fields)
    {
        m_words.push_back(field.key);
        m_fieldsByKey[field.key].push_back(&shape.fields);
        add(field.shape);
    }
    for (const Shape& part : shape.parts)
    {
        add(part);
    }
}

const Vocabulary::Fields* Vocabulary::fieldsWith(wstring_view key, Random& random) const
{
    const auto found = m_fieldsByKey.find(key);
    return found == m_fieldsByKey.end() ? nullptr : anyOf(found->second, random);
}

wstring_view Vocabulary::anyWord(Random& random) const
{
    return m_words.empty() ? wstring_view() : anyOf(m_words, random);
}

JsonValue Vocabulary::valueOf(const Shape& shape, Random& random, JsonAllocator& allocator, int depth) const
{
    const auto part = [&](const Shape& inner) { return valueOf(inner, random, allocator, depth + 1); };
    JsonValue object(rapidjson::kObjectType);
    JsonValue array(rapidjson::kArrayType);
    // A class that is not linked has no shape.
    const vrx::ClassShape* const inner =
        shape.classes.empty() ? nullptr : vrx::ClassShape::find(*anyOf(shape.classes, random));
    switch (depth < kMostDepth ? shape.kind : EShape::Any)
    {
    case EShape::Text:
        return textValue(anyWord(random), allocator);
    case EShape::Name:
        return textValue(anyOf(shape.names, random), allocator);
    case EShape::Record:
        for (const vrx::FieldShape& field : shape.fields)
        {
            if (random() % 2 == 0)
            {
                object.AddMember(textValue(field.key, allocator), part(field.shape), allocator);
            }
        }
        return object;
    case EShape::Map:
        for (auto count = random() % 3; count > 0; --count)
        {
            const wstring_view name = shape.names.empty() ? anyWord(random) : anyOf(shape.names, random);
            object.AddMember(textValue(name, allocator), part(shape.parts.front()), allocator);
        }
        return object;
    case EShape::List:
        for (auto count = shape.size != 0 ? shape.size : random() % 4; count > 0; --count)
        {
            array.PushBack(part(shape.parts.front()), allocator);
        }
        return array;
    case EShape::Tuple:
        for (const Shape& element : shape.parts)
        {
            array.PushBack(part(element), allocator);
        }
        return array;
    case EShape::Class:
    case EShape::OneOf:
        return inner == nullptr ? JsonValue() : part(inner->shape());
    default:
        return anyOfKind(shape.kind, random, allocator);
    }
}

} // namespace fuzz
