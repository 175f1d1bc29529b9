#pragma once

#include "vrx_api/json/enum_table.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/json/key.h"
#include "vrx_api/json/scalar.h"

#include <algorithm>
#include <array>
#include <limits>
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

// What a field takes from a value: true when the value is of the field's kind. A value of another kind leaves the field
// as it is. A type without an overload here or in shapes.h does not compile.

/// A double that is out of the range of a float becomes an infinity.
template <class T, std::enable_if_t<isScalar<T>, int> = 0>
bool decode(const JsonValue& value, T& field)
{
    static_assert(std::numeric_limits<float>::is_iec559, "infinities take what is out of range");
    using Json = std::conditional_t<std::is_same_v<T, float>, double, T>;
    if (!value.Is<Json>())
    {
        return false;
    }
    field = static_cast<T>(value.Get<Json>());
    return true;
}

bool decode(const JsonValue& value, wstring& field);

/// A nested object gets the value whatever its kind.
bool decode(const JsonValue& value, IJsonObject& field);

template <class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
bool decode(const JsonValue& value, E& field)
{
    if (!value.IsString())
    {
        return false;
    }
    field = enumValue<E>(textOf(value));
    return true;
}

/// A shared object is replaced by a new one, which gets the value whatever its kind.
template <class T>
bool decode(const JsonValue& value, std::shared_ptr<T>& field)
{
    static_assert(!std::is_abstract_v<T>, "one of several classes is read by a decode of its own, beside its holder");
    field = std::make_shared<T>();
    return decode(value, *field);
}

/// An array of a fixed size takes the first elements, up to one of another kind and no more than there is room for. The
/// others keep their values.
template <class T, std::size_t N>
bool decode(const JsonValue& value, std::array<T, N>& field)
{
    if (!value.IsArray())
    {
        return false;
    }
    const std::size_t count = std::min<std::size_t>(N, value.Size());
    for (std::size_t i = 0; i < count && decode(value.Begin()[i], field[i]); ++i)
    {
    }
    return true;
}

/// True for objects, by value and shared.
template <class T>
inline constexpr bool isNested = std::is_base_of_v<IJsonObject, T>;

template <class T>
inline constexpr bool isNested<std::shared_ptr<T>> = isNested<T>;

/// An array of objects appends a new one per element, whatever the element's kind. An object that throws is not
/// appended.
template <class T, std::enable_if_t<isNested<T>, int> = 0>
bool decode(const JsonValue& value, std::vector<T>& field)
{
    if (!value.IsArray())
    {
        return false;
    }
    field.reserve(field.size() + value.Size());
    for (const JsonValue& element : value.GetArray())
    {
        T object;
        decode(element, object);
        field.push_back(std::move(object));
    }
    return true;
}

} // namespace vrx
