#include "vrx_api/exchange/binary_tag.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_children.h"

#include <cstring>
#include <stdexcept>

namespace vrx
{

namespace
{

// One walk serves twice: with the first form it only adds the sizes up, so that the bytes are allocated once, and with
// the second it writes. Positions go by value: a member would be loaded again behind each byte that is written, which
// could be its own. Values are stored as the machine holds them, which is little-endian on both platforms.

struct SizeForm
{
    using Position = std::size_t;

    template <class T>
    static Position put(Position at, T)
    {
        return at + sizeof(T);
    }

    static Position putUnits(Position at, const wchar*, std::size_t count) { return at + count * sizeof(wchar); }
    static void patch(Position, std::uint64_t) {}
};

struct ByteForm
{
    using Position = char*;

    template <class T>
    static Position put(Position at, T value)
    {
        std::memcpy(at, &value, sizeof(T));
        return at + sizeof(T);
    }

    static Position putUnits(Position at, const wchar* units, std::size_t count)
    {
        std::memcpy(at, units, count * sizeof(wchar));
        return at + count * sizeof(wchar);
    }

    static void patch(Position at, std::uint64_t size) { put(at, size); }
};

template <class Form, class T>
typename Form::Position putTagged(typename Form::Position at, BinaryTag tag, T value)
{
    return Form::put(Form::put(at, tag), value);
}

template <class Form>
typename Form::Position encodeNumber(typename Form::Position at, const JsonValue& value)
{
    if (value.IsDouble())
    {
        return putTagged<Form>(at, BinaryTag::Double, value.GetDouble());
    }
    if (value.IsInt())
    {
        return putTagged<Form>(at, BinaryTag::Int, std::int32_t{value.GetInt()});
    }
    if (value.IsUint())
    {
        return putTagged<Form>(at, BinaryTag::Uint, std::uint32_t{value.GetUint()});
    }
    if (value.IsInt64())
    {
        return putTagged<Form>(at, BinaryTag::Int64, std::int64_t{value.GetInt64()});
    }
    if (value.IsUint64())
    {
        return putTagged<Form>(at, BinaryTag::Uint64, std::uint64_t{value.GetUint64()});
    }
    throw std::invalid_argument("Unknown number type");
}

template <class Form>
typename Form::Position encodeScalar(typename Form::Position at, const JsonValue& value)
{
    switch (value.GetType())
    {
    case rapidjson::kNullType:
        return Form::put(at, BinaryTag::Null);
    case rapidjson::kFalseType:
        return Form::put(at, BinaryTag::False);
    case rapidjson::kTrueType:
        return Form::put(at, BinaryTag::True);
    case rapidjson::kStringType:
        at = putTagged<Form>(at, BinaryTag::String, std::uint64_t{value.GetStringLength()});
        return Form::putUnits(at, value.GetString(), value.GetStringLength());
    default:
        return encodeNumber<Form>(at, value);
    }
}

bool isContainer(const JsonValue& value)
{
    return value.IsObject() || value.IsArray();
}

// Returns the position behind the value.
template <class Form>
typename Form::Position encode(typename Form::Position at, const JsonValue& root)
{
    struct Container
    {
        JsonChildren children;
        typename Form::Position sizeAt;
    };
    const auto open = [&at](const JsonValue& value) {
        at = Form::put(at, value.IsObject() ? BinaryTag::Object : BinaryTag::Array);
        const Container container{JsonChildren(value), at};
        at = Form::put(at, std::uint64_t{0});
        return container;
    };

    if (!isContainer(root))
    {
        return encodeScalar<Form>(at, root);
    }
    std::vector<Container> outer;
    Container innermost = open(root);
    while (true)
    {
        if (!innermost.children.atEnd())
        {
            const JsonValue& value = innermost.children.next();
            if (isContainer(value))
            {
                outer.push_back(innermost);
                innermost = open(value);
            }
            else
            {
                at = encodeScalar<Form>(at, value);
            }
            continue;
        }
        Form::patch(innermost.sizeAt, static_cast<std::uint64_t>(at - innermost.sizeAt) - sizeof(std::uint64_t));
        if (outer.empty())
        {
            return at;
        }
        innermost = outer.back();
        outer.pop_back();
    }
}

template <class Buffer>
void encodeInto(Buffer& bytes, const JsonValue& value)
{
    const std::size_t size = encode<SizeForm>(0, value);
    bytes.clear();
    bytes.resize(size);
    encode<ByteForm>(bytes.data(), value);
}

} // namespace

void JsonBinaryIO::write(Bytes& bytes, const JsonValue& value)
{
    encodeInto(bytes, value);
}

void JsonBinaryIO::write(std::vector<char>& bytes, const JsonValue& value)
{
    encodeInto(bytes, value);
}

std::ostream& JsonBinaryIO::write(std::ostream& stream, const JsonValue& value)
{
    Bytes bytes;
    write(bytes, value);
    return stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

} // namespace vrx
