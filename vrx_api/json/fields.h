#pragma once

#include "kolt/log.h"
#include "vrx_api/json/json_read.h"
#include "vrx_api/json/json_write.h"

namespace vrx
{

// A regular class describes its fields once, in the order in which they are written:
//
//     template <class Self, class Fields>
//     void ExcBlockReference::describe(Self& self, Fields& fields)
//     {
//         fields.always(WIDE("guid"), self.m_guid);
//         fields.filled(WIDE("misc_data"), self.m_miscData);
//     }
//
// and both directions walk that description. The verbs tell when a key is written:
//     always        in any case
//     filled        when the field holds something
//     when          under a condition
//     readOnly      never
// All are read when the key is there, by the rule of the field's type.

/// Takes the fields of a description from an object.
class FieldReader
{
public:
    explicit FieldReader(const JsonValue& object)
        : m_object(object)
    {
    }

    template <class T>
    void always(Key key, T& field)
    {
        if (const JsonValue* const value = find(m_object, key))
        {
            decode(*value, field);
        }
    }

    template <class T>
    void filled(Key key, T& field)
    {
        always(key, field);
    }

    template <class T>
    void when(bool, Key key, T& field)
    {
        always(key, field);
    }

    template <class T>
    void readOnly(Key key, T& field)
    {
        always(key, field);
    }

private:
    const JsonValue& m_object;
};

/// Counts the members that a description writes.
class FieldCounter
{
public:
    rapidjson::SizeType count() const { return m_count; }

    template <class T>
    void always(Key, const T&)
    {
        ++m_count;
    }

    template <class T>
    void filled(Key, const T& field)
    {
        m_count += isEmpty(field) ? 0U : 1U;
    }

    template <class T>
    void when(bool written, Key, const T&)
    {
        m_count += written ? 1U : 0U;
    }

    template <class T>
    void readOnly(Key, const T&)
    {
    }

private:
    rapidjson::SizeType m_count = 0;
};

/// Adds the fields of a description to an object.
class FieldWriter
{
public:
    FieldWriter(JsonValue& object, JsonAllocator& allocator)
        : m_object(object)
        , m_allocator(allocator)
    {
    }

    template <class T>
    void always(Key key, const T& field)
    {
        addMember(m_object, key, encode(field, m_allocator), m_allocator);
    }

    template <class T>
    void filled(Key key, const T& field)
    {
        when(!isEmpty(field), key, field);
    }

    template <class T>
    void when(bool written, Key key, const T& field)
    {
        if (written)
        {
            always(key, field);
        }
    }

    template <class T>
    void readOnly(Key, const T&)
    {
    }

private:
    JsonValue& m_object;
    JsonAllocator& m_allocator;
};

/// Befriended by the classes, whose descriptions are private.
struct FieldAccess
{
    template <class T, class Fields>
    static void describe(T& object, Fields& fields)
    {
        T::describe(object, fields);
    }
};

/// Takes the members of a value that is known to be an object.
template <class T>
void readMembers(T& object, const JsonValue& value)
{
    FieldReader reader(value);
    FieldAccess::describe(object, reader);
}

/// Makes the value an object of the described members.
template <class T>
void writeMembers(const T& object, JsonValue& value, JsonAllocator& allocator)
{
    FieldCounter counter;
    FieldAccess::describe(object, counter);
    setObject(value, counter.count(), allocator);
    FieldWriter writer(value, allocator);
    FieldAccess::describe(object, writer);
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
