#pragma once

#include "vrx_api/json/described.h"
#include "vrx_api/json/enum_table.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/json/key.h"
#include "vrx_api/json/scalar.h"
#include "vrx_api/json/shape.h"

#include <array>
#include <memory>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace vrx
{

/// The fields of a description as data: the walk that neither reads nor writes.
class FieldLister
{
public:
    static constexpr bool kReads = false;

    template <class T>
    void whole(const T& field)
    {
        outline(m_shape, field);
    }

    template <class T>
    void always(Key key, const T& field)
    {
        add(key, field, kRead | kAlwaysWritten);
    }

    template <class T>
    void required(Key key, const char*, const T& field)
    {
        add(key, field, kRequired | kAlwaysWritten);
    }

    template <class T>
    void expected(Key key, const char*, const T& field)
    {
        add(key, field, kRequired | kAlwaysWritten);
    }

    template <class T>
    void filled(Key key, const T& field)
    {
        add(key, field, kRead | kWritten);
    }

    template <class T>
    void when(bool, Key key, const T& field)
    {
        add(key, field, kRead | kWritten);
    }

    template <class T>
    void flagged(Key key, bool, const T& field)
    {
        add(key, field, kRead | kWritten);
    }

    template <class T>
    void optional(Key key, bool, const T& field)
    {
        add(key, field, kRead | kWritten);
    }

    template <class T>
    void readOnly(Key key, const T& field)
    {
        add(key, field, kRead);
    }

    template <class T>
    void writeOnly(bool, Key key, const T& field)
    {
        add(key, field, kWritten);
    }

    /// The name that stands for the class is the only one of its table.
    template <class E>
    void classKey(Key key, E name)
    {
        add(key, name, kRequired | kAlwaysWritten);
        m_shape.fields.back().shape.names = {enumName(name)};
    }

    template <class T>
    void apart(Key key, const T& field)
    {
        add(key, field, kRead | kWritten);
    }

    /// What follows is read only where the field before it is true.
    bool goesOn(bool)
    {
        m_needed = m_shape.fields.back().key;
        return true;
    }

    /// The fields of a base that the class writes and does not read.
    void addUnread(FieldLister&& base);

    Shape take() { return std::move(m_shape); }

private:
    // What becomes of a key.
    enum EUse : unsigned
    {
        kRead = 1,
        kRequired = kRead | 2,
        kWritten = 4,
        kAlwaysWritten = kWritten | 8,
    };

    template <class T>
    void add(Key key, const T& field, unsigned use)
    {
        FieldShape told;
        told.key = wstring_view(key.text, key.size);
        told.needs = m_needed;
        told.isRead = (use & kRead) == kRead;
        told.isWritten = (use & kWritten) == kWritten;
        told.isAlwaysWritten = (use & kAlwaysWritten) == kAlwaysWritten;
        told.isRequired = (use & kRequired) == kRequired;
        outline(told.shape, field);
        // What is nothing is not written at all, unless it is written in any case.
        told.shape.mayBeNull = told.shape.mayBeNull && told.isAlwaysWritten;
        add(std::move(told));
    }

    /// A key that is told twice is one.
    void add(FieldShape&& told);

    Shape m_shape;
    wstring_view m_needed;
};

// What a field looks like on the wire. A type without an overload here or in shapes.h does not compile.

template <class T, std::enable_if_t<isScalar<T>, int> = 0>
void outline(Shape& shape, T)
{
    shape.kind = std::is_same_v<T, bool>            ? EShape::Boolean
                 : std::is_same_v<T, std::int32_t>  ? EShape::Int32
                 : std::is_same_v<T, std::uint32_t> ? EShape::Uint32
                 : std::is_same_v<T, std::uint64_t> ? EShape::Uint64
                                                    : EShape::Double;
}

inline void outline(Shape& shape, const wstring&)
{
    shape.kind = EShape::Text;
}

template <class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
void outline(Shape& shape, E)
{
    shape.kind = EShape::Name;
    for (const EnumName<E>& row : tableOf<E>())
    {
        shape.names.push_back(row.name);
    }
    shape.otherNames = rowOfOtherNames<E>().name;
}

template <class T, std::enable_if_t<std::is_base_of_v<IJsonObject, T>, int> = 0>
void outline(Shape& shape, const T&)
{
    shape.kind = EShape::Class;
    shape.classes = {&typeid(T)};
}

/// A null pointer writes JSON null.
template <class T>
void outline(Shape& shape, const std::shared_ptr<T>&)
{
    shape.kind = EShape::Class;
    shape.classes = {&typeid(T)};
    shape.mayBeNull = true;
}

/// An array of elements like this one.
template <class T>
void outlineList(Shape& shape, const T& element)
{
    shape.kind = EShape::List;
    outline(shape.parts.emplace_back(), element);
}

/// No null pointer is written among the elements of an array.
template <class T>
void outlineElements(Shape& shape)
{
    outlineList(shape, T{});
    shape.parts.front().mayBeNull = false;
}

template <class T>
void outline(Shape& shape, const std::vector<T>&)
{
    outlineElements<T>(shape);
}

template <class T, std::size_t N>
void outline(Shape& shape, const std::array<T, N>&)
{
    outlineElements<T>(shape);
    shape.size = N;
}

/// The fields of a class by its own description or by that of a base.
template <class T, class Base>
Shape outlineOf()
{
    FieldLister fields;
    Described<Base>::walk(T(), fields);
    return fields.take();
}

/// The text of this function's signature, in which the compiler spells T.
template <class T>
constexpr std::string_view signatureWith()
{
#ifdef _MSC_VER
    return __FUNCSIG__;
#else
    return __PRETTY_FUNCTION__;
#endif
}

bool enterShape(const std::type_info& type, std::string_view signature, Shape (*make)());

/// Enters a class while the library is loaded, but for a mere base. True, so that a constant can be made of the call.
template <class T, class Base>
bool enterShape()
{
    if constexpr (!std::is_default_constructible_v<T>)
    {
        return true;
    }
    else
    {
        return enterShape(typeid(T), signatureWith<T>(), &outlineOf<T, Base>);
    }
}

} // namespace vrx
