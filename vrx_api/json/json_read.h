#pragma once

#include "vrx_api/json/enum_table.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/json/key.h"

#include <cstdint>
#include <memory>
#include <type_traits>
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

/// True for an object; otherwise logs that the class's value should be one.
bool isObject(const JsonValue& value, const char* className);

/// What a field takes from a value. A value of another kind leaves the field as it is.
void decode(const JsonValue& value, bool& field);
void decode(const JsonValue& value, std::int32_t& field);
void decode(const JsonValue& value, std::uint32_t& field);
void decode(const JsonValue& value, std::uint64_t& field);
void decode(const JsonValue& value, double& field);

/// A number out of the range becomes an infinity.
void decode(const JsonValue& value, float& field);

void decode(const JsonValue& value, wstring& field);

/// A nested object gets the value whatever its kind.
void decode(const JsonValue& value, IJsonObject& field);

template <class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
void decode(const JsonValue& value, E& field)
{
    if (value.IsString())
    {
        field = enumValue<E>(textOf(value));
    }
}

/// A shared object is replaced by a new one, which gets the value whatever its kind.
template <class T>
void decode(const JsonValue& value, std::shared_ptr<T>& field)
{
    field = std::make_shared<T>();
    field->readObject(value);
}

/// An array of strings appends those of its elements that are strings.
void decode(const JsonValue& value, std::vector<wstring>& field);

/// An array of objects appends one new object an element, whatever the element's kind.
template <class T>
void decode(const JsonValue& value, std::vector<T>& field)
{
    if (!value.IsArray())
    {
        return;
    }
    field.reserve(field.size() + value.Size());
    for (const JsonValue& element : value.GetArray())
    {
        decode(element, field.emplace_back());
    }
}

} // namespace vrx
