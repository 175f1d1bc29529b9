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

/// Makes the value an empty object with room for exactly this many members.
void setObject(JsonValue& value, rapidjson::SizeType capacity, JsonAllocator& allocator);

/// Adds a member whose name is not copied.
void addMember(JsonValue& object, Key key, JsonValue&& value, JsonAllocator& allocator);

/// The value that a field writes.
JsonValue encode(bool field, JsonAllocator& allocator);
JsonValue encode(std::int32_t field, JsonAllocator& allocator);
JsonValue encode(std::uint32_t field, JsonAllocator& allocator);
JsonValue encode(std::uint64_t field, JsonAllocator& allocator);
JsonValue encode(double field, JsonAllocator& allocator);
JsonValue encode(float field, JsonAllocator& allocator);
JsonValue encode(const wstring& field, JsonAllocator& allocator);
JsonValue encode(const IJsonObject& field, JsonAllocator& allocator);

/// The names of a table live as long as the library, so that they are not copied.
inline JsonValue encodeName(wstring_view name)
{
    return JsonValue(JsonValue::StringRefType(name.data(), static_cast<rapidjson::SizeType>(name.size())));
}

template <class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
JsonValue encode(E field, JsonAllocator&)
{
    return encodeName(enumName(field));
}

/// A null pointer writes JSON null.
template <class T>
JsonValue encode(const std::shared_ptr<T>& field, JsonAllocator& allocator)
{
    return field == nullptr ? JsonValue() : encode(*field, allocator);
}

template <class T>
bool isNull(const std::shared_ptr<T>& element)
{
    return element == nullptr;
}

template <class T>
bool isNull(const T&)
{
    return false;
}

/// An array of all elements, without the null pointers among them.
template <class T>
JsonValue encode(const std::vector<T>& field, JsonAllocator& allocator)
{
    JsonValue array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(field.size()), allocator);
    for (const T& element : field)
    {
        if (!isNull(element))
        {
            array.PushBack(encode(element, allocator), allocator);
        }
    }
    return array;
}

/// What a key that is written only when it holds something takes for nothing.
inline bool isEmpty(std::int32_t field)
{
    return field == 0;
}

inline bool isEmpty(const wstring& field)
{
    return field.empty();
}

template <class T>
bool isEmpty(const std::shared_ptr<T>& field)
{
    return field == nullptr;
}

template <class T>
bool isEmpty(const std::vector<T>& field)
{
    return field.empty();
}

template <class T>
auto isEmpty(const T& field) -> decltype(field.isEmpty())
{
    return field.isEmpty();
}

} // namespace vrx
