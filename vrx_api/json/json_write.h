#pragma once

#include "vrx_api/json/direct.h"
#include "vrx_api/json/enum_table.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/json/key.h"
#include "vrx_api/json/scalar.h"
#include "vrx_api/json/tree_writer.h"

#include <array>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <vector>

namespace vrx
{

/// Adds a member whose name is not copied.
void addMember(JsonValue& object, Key key, JsonValue&& value, JsonAllocator& allocator);

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

// What a field writes. A type without an overload here or in shapes.h does not compile. An `Out` is a TreeWriter, a
// SizeWriter or a ByteWriter.

template <class Out, class T, std::enable_if_t<isScalar<T>, int> = 0>
void encode(Out& out, T field)
{
    using Json = std::conditional_t<std::is_same_v<T, float>, double, T>;
    out.scalar(Json{field});
}

template <class Out>
void encode(Out& out, const wstring& field)
{
    out.text(field);
}

/// The names of a table live as long as the library, so that they are not copied.
template <class Out, class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
void encode(Out& out, E field)
{
    out.name(enumName(field));
}

template <class T, std::enable_if_t<std::is_base_of_v<IJsonObject, T>, int> = 0>
void encode(TreeWriter& out, const T& field)
{
    out.object(field);
}

template <class Out, class T, std::enable_if_t<std::is_base_of_v<IJsonObject, T>, int> = 0>
void encode(Out& out, const T& field)
{
    writeDirectly(field, out);
}

/// A null pointer writes JSON null.
template <class Out, class T>
void encode(Out& out, const std::shared_ptr<T>& field)
{
    field == nullptr ? out.null() : encode(out, *field);
}

/// An array of all elements, without the null pointers among them.
template <class Out, class Elements>
void encodeElements(Out& out, const Elements& elements)
{
    const auto begin = out.beginArray();
    for (const auto& element : elements)
    {
        if (!isNull(element))
        {
            encode(out, element);
        }
    }
    out.endArray(begin);
}

template <class Out, class T>
void encode(Out& out, const std::vector<T>& field)
{
    encodeElements(out, field);
}

template <class Out, class T, std::size_t N>
void encode(Out& out, const std::array<T, N>& field)
{
    encodeElements(out, field);
}

/// The tree of a field.
template <class T>
JsonValue treeOf(const T& field, JsonAllocator& allocator)
{
    TreeWriter out(allocator);
    encode(out, field);
    return out.take();
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
