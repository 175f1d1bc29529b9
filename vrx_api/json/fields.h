#pragma once

#include "kolt/log.h"
#include "vrx_api/json/json_read.h"
#include "vrx_api/json/json_write.h"
#include "vrx_api/json/kind.h"

#include <stdexcept>
#include <type_traits>
#include <utility>

namespace vrx
{

// A regular class describes its fields once, one line a key, and all walks go over that description.
// docs/adding_a_class.md tells the verbs and how a class is added.

/// Takes the fields of a description from an object.
class FieldReader
{
public:
    static constexpr bool kReads = true;

    explicit FieldReader(const JsonValue& object)
        : m_object(object)
    {
    }

    template <class T>
    void always(Key key, T&& field)
    {
        take(key, std::forward<T>(field));
    }

    template <class T>
    void required(Key key, const char* refusal, T&& field)
    {
        if (!take(key, std::forward<T>(field)))
        {
            throw std::invalid_argument(refusal);
        }
    }

    template <class T>
    void filled(Key key, T&& field)
    {
        take(key, std::forward<T>(field));
    }

    template <class T>
    void when(bool, Key key, T&& field)
    {
        take(key, std::forward<T>(field));
    }

    template <class T>
    void flagged(Key key, bool& flag, T&& field)
    {
        flag = take(key, std::forward<T>(field)) || flag;
    }

    template <class T>
    void optional(Key key, bool& flag, T&& field)
    {
        flag = take(key, std::forward<T>(field));
    }

    template <class T>
    void readOnly(Key key, T&& field)
    {
        take(key, std::forward<T>(field));
    }

    template <class T>
    void writeOnly(bool, Key, const T&)
    {
    }

private:
    /// True when the key is there, with a value of the field's kind. The field is a member of the class, or a rule
    /// around members; a temporary number or object, which would be read in vain, does not compile.
    template <class T>
    bool take(Key key, T&& field)
    {
        const JsonValue* const value = find(m_object, key);
        return value != nullptr && decode(*value, std::forward<T>(field));
    }

    const JsonValue& m_object;
};

/// What the walks that write make of the verbs: each that writes is a `when`.
template <class Walk>
class WritingWalk
{
public:
    static constexpr bool kReads = false;

    template <class T>
    void always(Key key, const T& field)
    {
        derived().when(true, key, field);
    }

    template <class T>
    void required(Key key, const char*, const T& field)
    {
        derived().when(true, key, field);
    }

    template <class T>
    void filled(Key key, const T& field)
    {
        derived().when(!isEmpty(field), key, field);
    }

    template <class T>
    void flagged(Key key, bool flag, const T& field)
    {
        derived().when(flag, key, field);
    }

    template <class T>
    void optional(Key key, bool flag, const T& field)
    {
        derived().when(flag, key, field);
    }

    template <class T>
    void readOnly(Key, const T&)
    {
    }

    template <class T>
    void writeOnly(bool written, Key key, const T& field)
    {
        derived().when(written, key, field);
    }

private:
    Walk& derived() { return static_cast<Walk&>(*this); }
};

/// Counts the members that a description writes.
class FieldCounter : public WritingWalk<FieldCounter>
{
public:
    rapidjson::SizeType count() const { return m_count; }

    template <class T>
    void when(bool written, Key, const T&)
    {
        m_count += written ? 1U : 0U;
    }

private:
    rapidjson::SizeType m_count = 0;
};

/// Adds the fields of a description to an object.
class FieldWriter : public WritingWalk<FieldWriter>
{
public:
    FieldWriter(JsonValue& object, JsonAllocator& allocator)
        : m_object(object)
        , m_allocator(allocator)
    {
    }

    template <class T>
    void when(bool written, Key key, const T& field)
    {
        if (written)
        {
            addMember(m_object, key, encode(field, m_allocator), m_allocator);
        }
    }

private:
    JsonValue& m_object;
    JsonAllocator& m_allocator;
};

template <class T>
void Described<T>::walk(T& object, FieldReader& fields)
{
    T::describe(object, fields);
}

template <class T>
void Described<T>::walk(const T& object, FieldCounter& fields)
{
    T::describe(object, fields);
}

template <class T>
void Described<T>::walk(const T& object, FieldWriter& fields)
{
    T::describe(object, fields);
}

/// The first line of a description whose class has a described base: the keys of the base.
template <class Base, class Self, class Fields>
void describeBase(Self& self, Fields& fields)
{
    std::conditional_t<std::is_const_v<Self>, const Base, Base>& base = self;
    Described<Base>::walk(base, fields);
}

/// The same for a class that writes the keys of its base and does not take them back.
template <class Base, class Self, class Fields>
void describeBaseForWriting(Self& self, Fields& fields)
{
    if constexpr (!Fields::kReads)
    {
        describeBase<Base>(self, fields);
    }
}

/// Takes the members of a value that is known to be an object.
template <class T>
void readMembers(T& object, const JsonValue& value)
{
    FieldReader reader(value);
    Described<T>::walk(object, reader);
}

/// Makes the value an object of the described members.
template <class T>
void writeMembers(const T& object, JsonValue& value, JsonAllocator& allocator)
{
    FieldCounter counter;
    Described<T>::walk(object, counter);
    setObject(value, counter.count(), allocator);
    FieldWriter writer(value, allocator);
    Described<T>::walk(object, writer);
}

/// Adds the described members to an object; a value that is none is made one.
template <class T>
void addMembers(const T& object, JsonValue& value, JsonAllocator& allocator)
{
    if (!value.IsObject())
    {
        writeMembers(object, value, allocator);
        return;
    }
    FieldWriter writer(value, allocator);
    Described<T>::walk(object, writer);
}

/// The regular `readObject`: the trace line, the kind test with its message, the members.
template <class T>
void readFields(T& object, const JsonValue& value, const char* className,
                kolt::SourcePlace place = kolt::SourcePlace::current())
{
    kolt::trace(place);
    if (isObject(value, className))
    {
        readMembers(object, value);
    }
}

/// The regular `writeObject`: the trace line, then the members.
template <class T>
void writeFields(const T& object, JsonValue& value, JsonAllocator& allocator,
                 kolt::SourcePlace place = kolt::SourcePlace::current())
{
    kolt::trace(place);
    writeMembers(object, value, allocator);
}

} // namespace vrx
