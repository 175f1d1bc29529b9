#pragma once

#include "vrx_api/json/enum_table.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/json/key.h"
#include "vrx_api/json/scalar.h"

#include <array>
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

// The value that a field writes. A type without an overload here or in shapes.h does not compile.

template <class T, std::enable_if_t<isScalar<T>, int> = 0>
JsonValue encode(T field, JsonAllocator&)
{
    if constexpr (std::is_same_v<T, float>)
    {
        return JsonValue(double{field});
    }
    else
    {
        return JsonValue(field);
    }
}

JsonValue encode(const wstring& field, JsonAllocator& allocator);
JsonValue encode(const IJsonObject& field, JsonAllocator& allocator);

/// The names of a table live as long as the library, so that they are not copied.
template <class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
JsonValue encode(E field, JsonAllocator&)
{
    const wstring_view name = enumName(field);
    return JsonValue(JsonValue::StringRefType(name.data(), static_cast<rapidjson::SizeType>(name.size())));
}

template <class T>
JsonValue encode(const std::vector<T>& field, JsonAllocator& allocator);

template <class T, std::size_t N>
JsonValue encode(const std::array<T, N>& field, JsonAllocator& allocator);

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
template <class Elements>
JsonValue encodeElements(const Elements& elements, JsonAllocator& allocator)
{
    JsonValue array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(elements.size()), allocator);
    for (const auto& element : elements)
    {
        if (!isNull(element))
        {
            array.PushBack(encode(element, allocator), allocator);
        }
    }
    return array;
}

template <class T>
JsonValue encode(const std::vector<T>& field, JsonAllocator& allocator)
{
    return encodeElements(field, allocator);
}

template <class T, std::size_t N>
JsonValue encode(const std::array<T, N>& field, JsonAllocator& allocator)
{
    return encodeElements(field, allocator);
}

// True when the verb `filled` writes no key.

template <class T, std::enable_if_t<std::is_same_v<T, std::int32_t>, int> = 0>
bool isEmpty(T field)
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
