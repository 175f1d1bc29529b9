#pragma once

#include "vrx_api/json/fields.h"

#include <tuple>

namespace vrx
{

// The rules that a description names on the line of a key, each around the fields that it is about:
//
//     fields.always(WIDE("line"), exactly(kWrongLine, self.m_lineStart, self.m_lineEnd));
//
// A rule says what is read and what is written, and never asks for the direction.

/// An array of just as many elements as there are fields; one of another size takes nothing and logs the refusal. An
/// element of another kind leaves its field as it is, or resets it to its zero.
template <bool Resets, class... Fields>
struct Exactly
{
    const char* refusal;
    std::tuple<Fields...> fields;
};

template <class... Fields>
Exactly<false, Fields...> exactly(const char* refusal, Fields&&... fields)
{
    return {refusal, {std::forward<Fields>(fields)...}};
}

template <class... Fields>
Exactly<true, Fields...> exactlyOrReset(const char* refusal, Fields&&... fields)
{
    return {refusal, {std::forward<Fields>(fields)...}};
}

template <bool Resets, class Value, class T>
void decodeElement(const Value& value, T& field)
{
    if constexpr (Resets)
    {
        field = T();
    }
    decode(value, field);
}

template <class Value, bool Resets, class... Fields>
bool decode(const Value& value, const Exactly<Resets, Fields...>& field)
{
    if (!value.isArray())
    {
        return false;
    }
    const auto elements = value.elements();
    if (elements.count() != sizeof...(Fields))
    {
        if (field.refusal != kSilently)
        {
            kolt::log(kolt::kWarning, field.refusal);
        }
        return false;
    }
    auto element = elements.begin();
    const auto next = [&element] {
        const Value taken = *element;
        ++element;
        return taken;
    };
    std::apply([&](auto&... each) { (decodeElement<Resets>(next(), each), ...); }, field.fields);
    return true;
}

template <class Out, bool Resets, class... Fields>
void encode(Out& out, const Exactly<Resets, Fields...>& field)
{
    const auto begin = out.beginArray();
    std::apply([&](const auto&... each) { (encode(out, each), ...); }, field.fields);
    out.endArray(begin);
}

template <bool Resets, class... Fields>
void outline(Shape& shape, const Exactly<Resets, Fields...>& field)
{
    shape.kind = EShape::Tuple;
    std::apply([&](const auto&... each) { (outline(shape.parts.emplace_back(), each), ...); }, field.fields);
}

/// An array of scalars, strings or names, which appends. An element of another kind is passed over, or keeps its place
/// as a zero or an empty string.
template <bool KeepsPlaces, class Elements>
struct Values
{
    Elements& elements;
};

template <class Elements>
Values<false, Elements> valid(Elements& elements)
{
    return {elements};
}

template <class Elements>
Values<true, Elements> places(Elements& elements)
{
    return {elements};
}

template <class Value, bool KeepsPlaces, class Elements>
bool decode(const Value& value, const Values<KeepsPlaces, Elements>& field)
{
    if (!value.isArray())
    {
        return false;
    }
    if constexpr (KeepsPlaces)
    {
        field.elements.reserve(field.elements.size() + value.template expectedCount<typename Elements::value_type>());
    }
    for (const Value json : value.elements())
    {
        typename Elements::value_type element{};
        if (decode(json, element) || KeepsPlaces)
        {
            field.elements.insert(field.elements.end(), std::move(element));
        }
    }
    return true;
}

template <class Out, bool KeepsPlaces, class Elements>
void encode(Out& out, const Values<KeepsPlaces, Elements>& field)
{
    encodeElements(out, field.elements);
}

template <bool KeepsPlaces, class Elements>
void outline(Shape& shape, const Values<KeepsPlaces, Elements>&)
{
    outlineElements<typename std::remove_const_t<Elements>::value_type>(shape);
}

template <bool KeepsPlaces, class Elements>
bool isEmpty(const Values<KeepsPlaces, Elements>& field)
{
    return field.elements.empty();
}

/// An array of valid elements that replaces what was there.
template <class Elements>
struct Replaced
{
    Elements& elements;
};

template <class Elements>
Replaced<Elements> replaced(Elements& elements)
{
    return {elements};
}

template <class Value, class Elements>
bool decode(const Value& value, const Replaced<Elements>& field)
{
    if (!value.isArray())
    {
        return false;
    }
    field.elements.clear();
    return decode(value, valid(field.elements));
}

template <class Out, class Elements>
void encode(Out& out, const Replaced<Elements>& field)
{
    encodeElements(out, field.elements);
}

template <class Elements>
void outline(Shape& shape, const Replaced<Elements>& field)
{
    outline(shape, valid(field.elements));
}

/// An object that is no class of its own, with a description: a function of the object and the walk. A value of another
/// kind is passed over without a log line.
template <class T, class Describe>
struct Record
{
    T& object;
    Describe describe;
};

template <class T, class Describe>
Record<T, Describe> record(T& object, const Describe& describe)
{
    return {object, describe};
}

template <class Value, class T, class Describe>
bool decode(const Value& value, const Record<T, Describe>& field)
{
    if (!value.isObject())
    {
        return false;
    }
    FieldReader<Value> fields(value);
    field.describe(field.object, fields);
    return true;
}

template <class Out, class T, class Describe>
void encode(Out& out, const Record<T, Describe>& field)
{
    FieldWriter<Out> fields(out);
    const auto begin = out.beginObject();
    field.describe(field.object, fields);
    out.endObject(begin);
}

template <class T, class Describe>
void outline(Shape& shape, const Record<T, Describe>& field)
{
    FieldLister fields;
    field.describe(field.object, fields);
    shape = fields.take();
}

/// An array of objects, each of which `enter` takes when it has been read: into an index, for one.
template <class Elements, class Enter>
struct Entered
{
    Elements& elements;
    Enter enter;
};

template <class Elements, class Enter>
Entered<Elements, Enter> entered(Elements& elements, const Enter& enter)
{
    return {elements, enter};
}

template <class Value, class Elements, class Enter>
bool decode(const Value& value, const Entered<Elements, Enter>& field)
{
    const std::size_t count = field.elements.size();
    const bool taken = decode(value, field.elements);
    for (std::size_t i = count; i < field.elements.size(); ++i)
    {
        field.enter(field.elements[i]);
    }
    return taken;
}

template <class Out, class Elements, class Enter>
void encode(Out& out, const Entered<Elements, Enter>& field)
{
    encode(out, field.elements);
}

template <class Elements, class Enter>
void outline(Shape& shape, const Entered<Elements, Enter>& field)
{
    outline(shape, field.elements);
}

template <class Elements, class Enter>
bool isEmpty(const Entered<Elements, Enter>& field)
{
    return field.elements.empty();
}

/// A field in whose place JSON null is written under the condition.
template <class Field>
struct OrNull
{
    bool isNull;
    Field field;
};

template <class Field>
OrNull<Field> orNull(bool isNull, const Field& field)
{
    return {isNull, field};
}

template <class Value, class Field>
bool decode(const Value& value, const OrNull<Field>& field)
{
    return decode(value, field.field);
}

template <class Out, class Field>
void encode(Out& out, const OrNull<Field>& field)
{
    field.isNull ? out.null() : encode(out, field.field);
}

template <class Field>
void outline(Shape& shape, const OrNull<Field>& field)
{
    outline(shape, field.field);
    shape.mayBeNull = true;
}

/// A value that is read into one field and written from another.
template <class In, class Out>
struct InOut
{
    In& in;
    const Out& out;
};

template <class In, class Out>
InOut<In, Out> inOut(In& in, const Out& out)
{
    return {in, out};
}

template <class Value, class In, class Out>
bool decode(const Value& value, const InOut<In, Out>& field)
{
    return decode(value, field.in);
}

template <class Writer, class In, class Out>
void encode(Writer& writer, const InOut<In, Out>& field)
{
    encode(writer, field.out);
}

template <class In, class Out>
void outline(Shape& shape, const InOut<In, Out>& field)
{
    outline(shape, field.out);
}

/// What a field says of other objects, around the field: it reads and writes as the field does.
template <class Field>
struct Tied
{
    ERole role = ERole::Plain;
    EIdSpace space = EIdSpace::None;
    wstring_view indexed;
    std::size_t indexWidth = 1;
    Field field;
};

/// The id by which the object is named elsewhere.
template <class Field>
Tied<Field> identity(EIdSpace space, Field&& field)
{
    return {ERole::Identity, space, {}, 1, std::forward<Field>(field)};
}

/// The id of another object, or a list of them.
template <class Field>
Tied<Field> reference(EIdSpace space, Field&& field)
{
    return {ERole::Reference, space, {}, 1, std::forward<Field>(field)};
}

/// Positions in the list under another key, of which as many numbers make one of what is counted.
template <class Field>
Tied<Field> indices(Key indexed, std::size_t width, Field&& field)
{
    return {ERole::Index, EIdSpace::None, {indexed.text, indexed.size}, width, std::forward<Field>(field)};
}

template <class Value, class Field>
bool decode(const Value& value, const Tied<Field>& field)
{
    return decode(value, field.field);
}

template <class Out, class Field>
void encode(Out& out, const Tied<Field>& field)
{
    encode(out, field.field);
}

template <class Field>
void outline(Shape& shape, const Tied<Field>& field)
{
    outline(shape, field.field);
    shape.role = field.role;
    shape.space = field.space;
    shape.indexed = field.indexed;
    shape.indexWidth = field.indexWidth;
}

template <class Field>
bool isEmpty(const Tied<Field>& field)
{
    return isEmpty(field.field);
}

} // namespace vrx
