#include "vrx_api/exchange/binary_tag.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_children.h"

#include <cstring>
#include <stdexcept>

namespace vrx
{

namespace
{

// Both sinks take the same calls: one only adds the sizes up, so that the bytes are allocated once, and the other
// writes. Values are stored as the machine holds them, which is little-endian on both platforms.

class SizeSink
{
public:
    std::size_t position() const { return m_size; }

    template <class T>
    void put(T)
    {
        m_size += sizeof(T);
    }

    void putUnits(const wchar*, std::size_t count) { m_size += count * sizeof(wchar); }
    void patchSize(std::size_t, std::uint64_t) {}

private:
    std::size_t m_size = 0;
};

class ByteSink
{
public:
    explicit ByteSink(char* begin)
        : m_begin(begin)
        , m_next(begin)
    {
    }

    std::size_t position() const { return static_cast<std::size_t>(m_next - m_begin); }

    template <class T>
    void put(T value)
    {
        std::memcpy(m_next, &value, sizeof(T));
        m_next += sizeof(T);
    }

    void putUnits(const wchar* units, std::size_t count)
    {
        std::memcpy(m_next, units, count * sizeof(wchar));
        m_next += count * sizeof(wchar);
    }

    void patchSize(std::size_t position, std::uint64_t size) { std::memcpy(m_begin + position, &size, sizeof(size)); }

private:
    char* m_begin;
    char* m_next;
};

template <class Sink>
void encodeNumber(Sink& sink, const JsonValue& value)
{
    if (value.IsDouble())
    {
        sink.put(BinaryTag::Double);
        sink.put(value.GetDouble());
    }
    else if (value.IsInt())
    {
        sink.put(BinaryTag::Int);
        sink.put(static_cast<std::int32_t>(value.GetInt()));
    }
    else if (value.IsUint())
    {
        sink.put(BinaryTag::Uint);
        sink.put(static_cast<std::uint32_t>(value.GetUint()));
    }
    else if (value.IsInt64())
    {
        sink.put(BinaryTag::Int64);
        sink.put(static_cast<std::int64_t>(value.GetInt64()));
    }
    else if (value.IsUint64())
    {
        sink.put(BinaryTag::Uint64);
        sink.put(static_cast<std::uint64_t>(value.GetUint64()));
    }
    else
    {
        throw std::invalid_argument("Unknown number type");
    }
}

template <class Sink>
void encodeScalar(Sink& sink, const JsonValue& value)
{
    switch (value.GetType())
    {
    case rapidjson::kNullType:
        sink.put(BinaryTag::Null);
        break;
    case rapidjson::kFalseType:
        sink.put(BinaryTag::False);
        break;
    case rapidjson::kTrueType:
        sink.put(BinaryTag::True);
        break;
    case rapidjson::kStringType:
        sink.put(BinaryTag::String);
        sink.put(std::uint64_t{value.GetStringLength()});
        sink.putUnits(value.GetString(), value.GetStringLength());
        break;
    default:
        encodeNumber(sink, value);
        break;
    }
}

template <class Sink>
class Encoder
{
public:
    explicit Encoder(Sink& sink)
        : m_sink(sink)
    {
    }

    void encode(const JsonValue& root)
    {
        encodeOrOpen(root);
        while (!m_open.empty())
        {
            encodeChildren();
        }
    }

private:
    struct Container
    {
        JsonChildren children;
        std::size_t sizePosition = 0;
    };

    // True when the value is a container, whose children come next.
    bool encodeOrOpen(const JsonValue& value)
    {
        if (!value.IsObject() && !value.IsArray())
        {
            encodeScalar(m_sink, value);
            return false;
        }
        m_sink.put(value.IsObject() ? BinaryTag::Object : BinaryTag::Array);
        m_open.push_back({JsonChildren(value), m_sink.position()});
        m_sink.put(std::uint64_t{0});
        return true;
    }

    // Goes on with the innermost container, up to its end or to a container inside it.
    void encodeChildren()
    {
        JsonChildren& children = m_open.back().children;
        while (!children.atEnd())
        {
            if (encodeOrOpen(children.next()))
            {
                return;
            }
        }
        const std::size_t begin = m_open.back().sizePosition + sizeof(std::uint64_t);
        m_sink.patchSize(m_open.back().sizePosition, m_sink.position() - begin);
        m_open.pop_back();
    }

    Sink& m_sink;
    std::vector<Container> m_open;
};

template <class Buffer>
void encodeInto(Buffer& bytes, const JsonValue& value)
{
    SizeSink size;
    Encoder<SizeSink>(size).encode(value);
    bytes.clear();
    bytes.resize(size.position());
    ByteSink sink(bytes.data());
    Encoder<ByteSink>(sink).encode(value);
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
