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

template <class Value, class Pairs>
bool decode(const Value& value, const IndexPairs<Pairs>& field)
{
    if (!value.isArray())
    {
        return false;
    }
    field.pairs.reserve(field.pairs.size() + value.template expectedCount<typename Pairs::value_type>());
    for (const Value element : value.elements())
    {
        if (!element.isArray() || element.elements().count() < 2)
        {
            kolt::log(kolt::kWarning, field.refusal);
            continue;
        }
        auto item = element.elements().begin();
        auto& [first, second] = field.pairs.emplace_back(-1, -1);
        decode(*item, first);
        decode(*++item, second);
    }
    return true;
}

template <class Out, class Pairs>
void encode(Out& out, const IndexPairs<Pairs>& field)
{
    const auto begin = out.beginArray();
    for (const auto& [first, second] : field.pairs)
    {
        encode(out, std::array{first, second});
    }
    out.endArray(begin);
}

template <class Pairs>
bool isEmpty(const IndexPairs<Pairs>& field)
{
    return field.pairs.empty();
}

template <class Pairs>
void outline(Shape& shape, const IndexPairs<Pairs>&)
{
    outlineList(shape, std::array<std::int32_t, 2>());
}

/// The pattern of a class that the value itself tells; null when it tells none.
std::shared_ptr<ExcMfgPattern> readPattern(const TreeValue& value);
std::shared_ptr<ExcMfgPattern> readPattern(const BinaryValue& value);
void outlinePattern(Shape& shape);

/// The `writeObject` of a pattern: a value that is an object already keeps its members.
template <class T>
void addFields(const T& pattern, JsonValue& value, JsonAllocator& allocator,
               kolt::SourcePlace place = kolt::SourcePlace::current())
{
    static_cast<void>(&RegularWriter<T, Form::Object>::s_entered);
    kolt::trace(place);
    addMembers(pattern, value, allocator);
}

} // namespace vrx
