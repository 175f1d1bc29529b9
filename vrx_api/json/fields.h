#pragma once

#include "kolt/log.h"
#include "vrx_api/json/json_read.h"
#include "vrx_api/json/json_write.h"
#include "vrx_api/json/kind.h"
#include "vrx_api/json/member_finder.h"
#include "vrx_api/json/outline.h"

#include <stdexcept>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace vrx
{

// A regular class describes its fields once, one line a key, and all walks go over that description.
// docs/adding_a_class.md tells the verbs and how a class is added.

/// Takes the fields of a description from a value.
template <class Value>
class FieldReader
{
public:
    static constexpr bool kReads = true;

    explicit FieldReader(const Value& value)
        : m_value(value)
        , m_members(value)
    {
    }

    template <class T>
    void whole(T&& field)
    {
        decode(m_value, std::forward<T>(field));
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
    void expected(Key key, const char* complaint, T&& field)
    {
        if (!take(key, std::forward<T>(field)))
        {
            kolt::log(kolt::kError, complaint);
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

    template <class E>
    void classKey(Key, E)
    {
    }

    template <class T>
    void apart(Key, const T&)
    {
    }

    static bool goesOn(bool condition) { return condition; }

private:
    /// True when the key is there, with a value of the field's kind. The field is a member of the class, or a rule
    /// around members; a temporary number or object, which would be read in vain, does not compile.
    template <class T>
    bool take(Key key, T&& field)
    {
        const Value value = m_members.find(key);
        return value.isThere() && decode(value, std::forward<T>(field));
    }

    const Value m_value;
    MemberFinder<Value> m_members;
};

/// Writes the fields of a description: the members of an object, or the whole of a value.
template <class Out>
class FieldWriter
{
public:
    static constexpr bool kReads = false;

    explicit FieldWriter(Out& out)
        : m_out(out)
    {
    }

    template <class T>
    void whole(const T& field)
    {
        encode(m_out, field);
    }

    template <class T>
    void always(Key key, const T& field)
    {
        when(true, key, field);
    }

    template <class T>
    void required(Key key, const char*, const T& field)
    {
        when(true, key, field);
    }

    template <class T>
    void expected(Key key, const char*, const T& field)
    {
        when(true, key, field);
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
            m_out.key(key);
            encode(m_out, field);
        }
    }

    template <class T>
    void flagged(Key key, bool flag, const T& field)
    {
        when(flag, key, field);
    }

    template <class T>
    void optional(Key key, bool flag, const T& field)
    {
        when(flag, key, field);
    }

    template <class T>
    void readOnly(Key, const T&)
    {
    }

    template <class T>
    void writeOnly(bool written, Key key, const T& field)
    {
        when(written, key, field);
    }

    template <class E>
    void classKey(Key key, E name)
    {
        when(true, key, name);
    }

    template <class T>
    void apart(Key, const T&)
    {
    }

    static bool goesOn(bool condition) { return condition; }

private:
    Out& m_out;
};

template <class T>
void Described<T>::walk(T& object, FieldReader<TreeValue>& fields)
{
    T::describe(object, fields);
}

template <class T>
void Described<T>::walk(T& object, FieldReader<BinaryValue>& fields)
{
    T::describe(object, fields);
}

template <class T>
void Described<T>::walk(const T& object, FieldWriter<TreeWriter>& fields)
{
    T::describe(object, fields);
}

template <class T>
void Described<T>::walk(const T& object, FieldWriter<SizeWriter>& fields)
{
    T::describe(object, fields);
}

template <class T>
void Described<T>::walk(const T& object, FieldWriter<ByteWriter>& fields)
{
    T::describe(object, fields);
}

template <class T>
void Described<T>::walk(const T& object, FieldLister& fields)
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

template <class Base, class Self>
void describeBaseForWriting(Self& self, FieldLister& fields)
{
    FieldLister base;
    describeBase<Base>(self, base);
    fields.addUnread(std::move(base));
}

/// Takes what is described from a value of the right kind.
template <class T, class Value>
void readDescribed(T& object, const Value& value)
{
    FieldReader<Value> fields(value);
    Described<T>::walk(object, fields);
}

/// What the value of a class is. The description of an object tells its members, any other one the whole value.
enum class Form
{
    Object,
    Array,
    Any,
};

template <Form Kind, class Value>
bool hasForm(const Value& value)
{
    return Kind == Form::Any || (Kind == Form::Object ? value.isObject() : value.isArray());
}

/// Writes what is described.
template <Form Kind, class T, class Out>
void writeDescribed(const T& object, Out& out)
{
    FieldWriter<Out> fields(out);
    if constexpr (Kind == Form::Object)
    {
        const auto begin = out.beginObject();
        Described<T>::walk(object, fields);
        out.endObject(begin);
    }
    else
    {
        Described<T>::walk(object, fields);
    }
}

/// Takes the members of a value that is known to be an object.
template <class T>
void readMembers(T& object, const JsonValue& value)
{
    readDescribed(object, TreeValue(&value));
}

/// Makes the value an object of the described members.
template <class T>
void writeMembers(const T& object, JsonValue& value, JsonAllocator& allocator)
{
    TreeWriter out(allocator);
    writeDescribed<Form::Object>(object, out);
    value = out.take();
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
    TreeWriter out(allocator);
    writeDescribed<Form::Any>(object, out);
    out.addTo(value);
}

/// Enters a class among those of which the shape is known; the regular operations do so by themselves. For the others
/// their sources have the line `template struct Listed<...>;`.
template <class T, class Base = T>
struct Listed
{
    static const bool s_entered;
};

template <class T, class Base>
const bool Listed<T, Base>::s_entered = enterShape<T, Base>();

/// Enters a class whose `readObject` is a regular one among those that need no tree.
template <class T, Form Kind>
class RegularReader
{
public:
    static const bool s_entered;

    // The operation itself knows what to say of a value of another form, as null always is.
    static void read(IJsonObject& object, BinaryValue value)
    {
        if (hasForm<Kind>(value))
        {
            readDescribed(static_cast<T&>(object), value);
        }
        else
        {
            object.readObject(JsonValue());
        }
    }
};

template <class T, Form Kind>
const bool RegularReader<T, Kind>::s_entered = enterReader(typeid(T), &RegularReader::read);

/// The same of a regular `writeObject`.
template <class T, Form Kind>
class RegularWriter
{
public:
    static const bool s_entered;

    template <class Out>
    static void write(const IJsonObject& object, Out& out)
    {
        writeDescribed<Kind>(static_cast<const T&>(object), out);
    }
};

template <class T, Form Kind>
const bool RegularWriter<T, Kind>::s_entered = enterWriter(typeid(T), &RegularWriter::template write<SizeWriter>,
                                                           &RegularWriter::template write<ByteWriter>);

/// Enters a class that inherits the regular operations of its base, by the line `template struct Inherits<...>;`.
template <class T, class Base, Form Kind = Form::Object>
struct Inherits
{
    static const bool s_shape;
    static const bool s_reader;
    static const bool s_writer;
};

template <class T, class Base, Form Kind>
const bool Inherits<T, Base, Kind>::s_shape = enterShape<T, Base>();

template <class T, class Base, Form Kind>
const bool Inherits<T, Base, Kind>::s_reader = enterReader(typeid(T), &RegularReader<Base, Kind>::read);

template <class T, class Base, Form Kind>
const bool Inherits<T, Base, Kind>::s_writer = enterWriter(typeid(T),
                                                           &RegularWriter<Base, Kind>::template write<SizeWriter>,
                                                           &RegularWriter<Base, Kind>::template write<ByteWriter>);

/// The regular `readObject` of an object: the trace line, the kind test with its message, the fields. The class has no
/// other statement there.
template <class T>
void readFields(T& object, const JsonValue& value, const char* className,
                kolt::SourcePlace place = kolt::SourcePlace::current())
{
    static_cast<void>(&Listed<T>::s_entered);
    static_cast<void>(&RegularReader<T, Form::Object>::s_entered);
    kolt::trace(place);
    if (isObject(value, className))
    {
        readDescribed(object, TreeValue(&value));
    }
}

/// The same of an array.
template <class T>
void readArray(T& object, const JsonValue& value, const char* className,
               kolt::SourcePlace place = kolt::SourcePlace::current())
{
    static_cast<void>(&Listed<T>::s_entered);
    static_cast<void>(&RegularReader<T, Form::Array>::s_entered);
    kolt::trace(place);
    if (isArray(value, className))
    {
        readDescribed(object, TreeValue(&value));
    }
}

/// The same of a class whose description deals with values of all kinds.
template <class T>
void readWhole(T& object, const JsonValue& value, kolt::SourcePlace place = kolt::SourcePlace::current())
{
    static_cast<void>(&Listed<T>::s_entered);
    static_cast<void>(&RegularReader<T, Form::Any>::s_entered);
    kolt::trace(place);
    readDescribed(object, TreeValue(&value));
}

/// The regular `writeObject`: the trace line, then an object of the fields.
template <class T>
void writeFields(const T& object, JsonValue& value, JsonAllocator& allocator,
                 kolt::SourcePlace place = kolt::SourcePlace::current())
{
    static_cast<void>(&RegularWriter<T, Form::Object>::s_entered);
    kolt::trace(place);
    writeMembers(object, value, allocator);
}

/// The same of a class that is described as a whole.
template <class T>
void writeWhole(const T& object, JsonValue& value, JsonAllocator& allocator,
                kolt::SourcePlace place = kolt::SourcePlace::current())
{
    static_cast<void>(&RegularWriter<T, Form::Any>::s_entered);
    kolt::trace(place);
    TreeWriter out(allocator);
    writeDescribed<Form::Any>(object, out);
    value = out.take();
}

} // namespace vrx
