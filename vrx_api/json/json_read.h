#pragma once

#include "vrx_api/json/direct.h"
#include "vrx_api/json/enum_table.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/json/key.h"
#include "vrx_api/json/member_finder.h"
#include "vrx_api/json/scalar.h"
#include "vrx_api/json/tree_value.h"

#include <algorithm>
#include <array>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace vrx
{

/// The value of the first member of this name, or null. A member whose name is no string is passed over: the binary
/// form can carry any value in a name's place.
const JsonValue* find(const JsonValue& object, Key key);

/// The value of the first member of this name if it is a string, or null.
const JsonValue* findString(const JsonValue& object, Key key);

/// The text of a string value, which ends at its first NUL.
inline wstring_view textOf(const JsonValue& string)
{
    return wstring_view(string.GetString());
}

template <class Value>
wstring_view textOf(const Value& string)
{
    const wstring_view units = string.units();
    return units.substr(0, units.find(wchar{}));
}

/// Gives the value as a tree to a rule that reads trees only.
template <class Use>
void withTree(const TreeValue& value, const Use& use)
{
    use(value.json());
}

template <class Use>
void withTree(const BinaryValue& value, const Use& use)
{
    JsonDocument document;
    decodeTree(value, document);
    use(document);
}

/// The value of the first member of this name, or one that is not there. For several names a MemberFinder is faster.
template <class Value>
Value findMember(const Value& object, Key key)
{
    return MemberFinder<Value>(object).find(key);
}

// What a field takes from a value: true when the value is of the field's kind. A value of another kind leaves the field
// as it is. A type without an overload here or in shapes.h does not compile. A `Value` is a TreeValue or a BinaryValue.

template <class Value, class T, std::enable_if_t<isScalar<T>, int> = 0>
bool decode(const Value& value, T& field)
{
    return value.take(field);
}

template <class Value>
bool decode(const Value& value, wstring& field)
{
    if (!value.isString())
    {
        return false;
    }
    field = textOf(value);
    return true;
}

template <class Value, class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
bool decode(const Value& value, E& field)
{
    if (!value.isString())
    {
        return false;
    }
    field = enumValue<E>(textOf(value));
    return true;
}

/// True for objects, by value and shared.
template <class T>
inline constexpr bool isNested = std::is_base_of_v<IJsonObject, T>;

template <class T>
inline constexpr bool isNested<std::shared_ptr<T>> = isNested<T>;

/// A nested object gets the value whatever its kind.
template <class T, std::enable_if_t<std::is_base_of_v<IJsonObject, T>, int> = 0>
bool decode(const TreeValue& value, T& field)
{
    field.readObject(value.json());
    return true;
}

template <class T, std::enable_if_t<std::is_base_of_v<IJsonObject, T>, int> = 0>
bool decode(const BinaryValue& value, T& field)
{
    readDirectly(field, value);
    return true;
}

/// A shared object is replaced by a new one, which gets the value whatever its kind.
template <class Value, class T>
bool decode(const Value& value, std::shared_ptr<T>& field)
{
    static_assert(!std::is_abstract_v<T>, "one of several classes is read by a decode of its own, beside its holder");
    field = std::make_shared<T>();
    return decode(value, *field);
}

/// An array of a fixed size takes the first elements, up to one of another kind and no more than there is room for. The
/// others keep their values.
template <class Value, class T, std::size_t N>
bool decode(const Value& value, std::array<T, N>& field)
{
    if (!value.isArray())
    {
        return false;
    }
    std::size_t count = 0;
    for (const Value element : value.elements())
    {
        if (count == N || !decode(element, field[count]))
        {
            break;
        }
        ++count;
    }
    return true;
}

/// An array of objects appends a new one per element, whatever the element's kind. An object that throws is not
/// appended.
template <class Value, class T, std::enable_if_t<isNested<T>, int> = 0>
bool decode(const Value& value, std::vector<T>& field)
{
    if (!value.isArray())
    {
        return false;
    }
    field.reserve(field.size() + value.template expectedCount<T>());
    for (const Value element : value.elements())
    {
        T object;
        decode(element, object);
        field.push_back(std::move(object));
    }
    return true;
}

} // namespace vrx
