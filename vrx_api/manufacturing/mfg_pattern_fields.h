#pragma once

#include "vrx_api/json/fields.h"
#include "vrx_api/manufacturing/mfg_pattern.h"

#include <array>

namespace vrx
{

/// An array of index pairs, each an array of two integers. An element of one item or none, or of another kind, logs the
/// refusal and is passed over; items after the second are not looked at, and an item that is no integer is -1.
template <class Pairs>
struct IndexPairs
{
    const char* refusal;
    Pairs& pairs;
};

template <class Pairs>
IndexPairs<Pairs> indexPairs(const char* refusal, Pairs& pairs)
{
    return {refusal, pairs};
}

template <class Pairs>
bool decode(const JsonValue& value, const IndexPairs<Pairs>& field)
{
    if (!value.IsArray())
    {
        return false;
    }
    field.pairs.reserve(field.pairs.size() + value.Size());
    for (const JsonValue& element : value.GetArray())
    {
        if (!element.IsArray() || element.Size() < 2)
        {
            kolt::log(kolt::kWarning, field.refusal);
            continue;
        }
        auto& [first, second] = field.pairs.emplace_back(-1, -1);
        decode(element.Begin()[0], first);
        decode(element.Begin()[1], second);
    }
    return true;
}

template <class Pairs>
JsonValue encode(const IndexPairs<Pairs>& field, JsonAllocator& allocator)
{
    JsonValue array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(field.pairs.size()), allocator);
    for (const auto& [first, second] : field.pairs)
    {
        array.PushBack(encode(std::array{first, second}, allocator), allocator);
    }
    return array;
}

template <class Pairs>
bool isEmpty(const IndexPairs<Pairs>& field)
{
    return field.pairs.empty();
}

/// The `writeObject` of a pattern: a value that is an object already keeps its members.
template <class T>
void addFields(const T& pattern, JsonValue& value, JsonAllocator& allocator,
               kolt::SourcePlace place = kolt::SourcePlace::current())
{
    kolt::trace(place);
    addMembers(pattern, value, allocator);
}

} // namespace vrx
