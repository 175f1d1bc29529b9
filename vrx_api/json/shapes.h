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

template <bool Resets, class T>
void decodeElement(const JsonValue& value, T& field)
{
    if constexpr (Resets)
    {
        field = T();
    }
    decode(value, field);
}

template <bool Resets, class... Fields>
bool decode(const JsonValue& value, const Exactly<Resets, Fields...>& field)
{
    if (!value.IsArray())
    {
        return false;
    }
    if (value.Size() != sizeof...(Fields))
    {
        if (field.refusal != kSilently)
        {
            kolt::log(kolt::kWarning, field.refusal);
        }
        return false;
    }
    const JsonValue* element = value.Begin();
    std::apply([&](auto&... each) { (decodeElement<Resets>(*element++, each), ...); }, field.fields);
    return true;
}

template <bool Resets, class... Fields>
JsonValue encode(const Exactly<Resets, Fields...>& field, JsonAllocator& allocator)
{
    JsonValue array(rapidjson::kArrayType);
    array.Reserve(sizeof...(Fields), allocator);
    std::apply([&](const auto&... each) { (array.PushBack(encode(each, allocator), allocator), ...); }, field.fields);
    return array;
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

template <bool KeepsPlaces, class Elements>
bool decode(const JsonValue& value, const Values<KeepsPlaces, Elements>& field)
{
    if (!value.IsArray())
    {
        return false;
    }
    if constexpr (KeepsPlaces)
    {
        field.elements.reserve(field.elements.size() + value.Size());
    }
    for (const JsonValue& json : value.GetArray())
    {
        typename Elements::value_type element{};
        if (decode(json, element) || KeepsPlaces)
        {
            field.elements.insert(field.elements.end(), std::move(element));
        }
    }
    return true;
}

template <bool KeepsPlaces, class Elements>
JsonValue encode(const Values<KeepsPlaces, Elements>& field, JsonAllocator& allocator)
{
    return encodeElements(field.elements, allocator);
}

template <bool KeepsPlaces, class Elements>
bool isEmpty(const Values<KeepsPlaces, Elements>& field)
{
    return field.elements.empty();
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

template <class T, class Describe>
bool decode(const JsonValue& value, const Record<T, Describe>& field)
{
    if (!value.IsObject())
    {
        return false;
    }
    FieldReader reader(value);
    field.describe(field.object, reader);
    return true;
}

template <class T, class Describe>
JsonValue encode(const Record<T, Describe>& field, JsonAllocator& allocator)
{
    FieldCounter counter;
    field.describe(field.object, counter);
    JsonValue object;
    setObject(object, counter.count(), allocator);
    FieldWriter writer(object, allocator);
    field.describe(field.object, writer);
    return object;
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

template <class In, class Out>
bool decode(const JsonValue& value, const InOut<In, Out>& field)
{
    return decode(value, field.in);
}

template <class In, class Out>
JsonValue encode(const InOut<In, Out>& field, JsonAllocator& allocator)
{
    return encode(field.out, allocator);
}

} // namespace vrx
