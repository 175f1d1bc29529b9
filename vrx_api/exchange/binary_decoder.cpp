#include "kolt/log.h"
#include "vrx_api/exchange/binary_check.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/direct.h"
#include "vrx_api/json/json_value.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <limits>
#include <stdexcept>

namespace vrx
{

namespace
{

using namespace binary_failure;

// What is left of the innermost open container, passed by value so that it stays in registers.
struct Cursor
{
    const char* next;
    const char* end;

    std::size_t remaining() const { return static_cast<std::size_t>(end - next); }

    template <class T>
    T take(const char* failure)
    {
        T value;
        if (remaining() < sizeof(T))
        {
            throw std::length_error(failure);
        }
        std::memcpy(&value, next, sizeof(T));
        next += sizeof(T);
        return value;
    }
};

// Decodes one value into a document as its events, from which the document allocates every container exactly.
// A document takes any value in a name's place, as the format does.
class Decoder
{
public:
    Decoder(const char* data, std::size_t size)
        : m_all{data, data + size}
    {
    }

    // The generator that a document is populated by; true when there is something to take.
    bool operator()(JsonDocument& document)
    {
        m_document = &document;
        try
        {
            decode();
            m_begun = true;
        }
        catch (const std::logic_error&)
        {
            m_failure = std::current_exception();
            m_begun = closeAfterFailure();
        }
        return m_begun;
    }

    bool begun() const { return m_begun; }

    // Ends a decoding that failed, with the root as far as it came.
    void finish(JsonValue& root) const
    {
        if (m_failure == nullptr)
        {
            return;
        }
        if (m_lastChildCutOff)
        {
            root.IsArray() ? static_cast<void>(root.PopBack())
                           : static_cast<void>(root.EraseMember(root.MemberEnd() - 1));
        }
        std::rethrow_exception(m_failure);
    }

private:
    struct Container
    {
        const char* end;
        std::uint64_t count; // children, an object's names among them
        bool object;

        bool nameAlone() const { return object && count % 2 != 0; }
    };

    void decode()
    {
        Cursor cursor = decodeValue(m_all);
        while (!m_open.empty())
        {
            if (cursor.next < cursor.end || m_open.back().nameAlone())
            {
                ++m_open.back().count;
                cursor = decodeValue(cursor);
            }
            else
            {
                close();
                cursor.end = m_open.empty() ? m_all.end : m_open.back().end;
            }
        }
    }

    Cursor decodeValue(Cursor cursor)
    {
        switch (static_cast<BinaryTag>(cursor.take<std::uint32_t>(kNoType)))
        {
        case BinaryTag::Null:
            m_document->Null();
            return cursor;
        case BinaryTag::False:
            m_document->Bool(false);
            return cursor;
        case BinaryTag::True:
            m_document->Bool(true);
            return cursor;
        case BinaryTag::Object:
            return open(cursor, true);
        case BinaryTag::Array:
            return open(cursor, false);
        case BinaryTag::String:
            return decodeString(cursor);
        case BinaryTag::Int:
            m_document->Int(cursor.take<std::int32_t>(kNoNumber));
            return cursor;
        case BinaryTag::Uint:
            m_document->Uint(cursor.take<std::uint32_t>(kNoNumber));
            return cursor;
        case BinaryTag::Int64:
            m_document->Int64(cursor.take<std::int64_t>(kNoNumber));
            return cursor;
        case BinaryTag::Uint64:
            m_document->Uint64(cursor.take<std::uint64_t>(kNoNumber));
            return cursor;
        case BinaryTag::Double:
            m_document->Double(cursor.take<double>(kNoNumber));
            return cursor;
        default:
            throw std::invalid_argument(kUnknownType);
        }
    }

    Cursor decodeString(Cursor cursor)
    {
        const auto count = cursor.take<std::uint64_t>(kNoNumber);
        if (count > cursor.remaining() / sizeof(wchar) || count > std::numeric_limits<rapidjson::SizeType>::max())
        {
            throw std::length_error(kNoString);
        }
        m_units.resize(static_cast<std::size_t>(count));
        std::memcpy(m_units.data(), cursor.next, m_units.size() * sizeof(wchar));
        cursor.next += m_units.size() * sizeof(wchar);
        m_document->String(m_units.data(), static_cast<rapidjson::SizeType>(count), true);
        return cursor;
    }

    Cursor open(Cursor cursor, bool object)
    {
        object ? m_document->StartObject() : m_document->StartArray();
        m_open.push_back({cursor.next, 0, object});
        const auto size = cursor.take<std::uint64_t>(kNoNumber);
        if (size > cursor.remaining())
        {
            throw std::length_error(kNoArray);
        }
        cursor.end = cursor.next + size;
        m_open.back().end = cursor.end;
        return cursor;
    }

    void close()
    {
        const Container container = m_open.back();
        const std::uint64_t children = container.object ? container.count / 2 : container.count;
        if (children > std::numeric_limits<rapidjson::SizeType>::max())
        {
            throw std::length_error("Too many values in one array or object");
        }
        const auto count = static_cast<rapidjson::SizeType>(children);
        container.object ? m_document->EndObject(count) : m_document->EndArray(count);
        m_open.pop_back();
    }

    // Closes what the failure left open; false when not even the root was begun. The value that failed was counted
    // before it was decoded, unless it is the innermost container itself, whose size failed.
    bool closeAfterFailure()
    {
        if (m_open.empty())
        {
            return false;
        }
        if (m_open.back().count != 0)
        {
            --m_open.back().count;
        }
        m_lastChildCutOff = m_open.size() > 1 || m_open.back().nameAlone();
        while (!m_open.empty())
        {
            if (m_open.back().nameAlone())
            {
                m_document->Null();
                ++m_open.back().count;
            }
            close();
        }
        return true;
    }

    Cursor m_all;
    std::vector<Container> m_open;
    wstring m_units;
    JsonDocument* m_document = nullptr;
    std::exception_ptr m_failure;
    bool m_begun = false;
    bool m_lastChildCutOff = false;
};

// Takes bytes from a stream that has its whole content at hand; how many there were.
std::size_t takeBytes(std::istream& stream, std::vector<char>& bytes, std::uint64_t wanted)
{
    const std::size_t before = bytes.size();
    while (bytes.size() - before < wanted)
    {
        const std::streamsize available = stream.rdbuf()->in_avail();
        if (available <= 0)
        {
            break;
        }
        const std::size_t size = bytes.size();
        const std::uint64_t missing = wanted - (size - before);
        bytes.resize(size + static_cast<std::size_t>(std::min(missing, static_cast<std::uint64_t>(available))));
        const std::streamsize taken = stream.readsome(&bytes[size], static_cast<std::streamsize>(bytes.size() - size));
        bytes.resize(size + static_cast<std::size_t>(taken));
        if (taken <= 0)
        {
            break;
        }
    }
    return bytes.size() - before;
}

// How many bytes the payload of a value has behind its tag and, where it has one, its size.
std::uint64_t payloadSize(BinaryTag tag, std::uint64_t size)
{
    return tag != BinaryTag::String ? size
           : size > std::numeric_limits<std::uint64_t>::max() / sizeof(wchar)
               ? std::numeric_limits<std::uint64_t>::max()
               : size * sizeof(wchar);
}

bool hasSize(BinaryTag tag)
{
    return tag == BinaryTag::Object || tag == BinaryTag::Array || tag == BinaryTag::String;
}

std::uint64_t numberSize(BinaryTag tag)
{
    switch (tag)
    {
    case BinaryTag::Int:
    case BinaryTag::Uint:
        return sizeof(std::uint32_t);
    case BinaryTag::Int64:
    case BinaryTag::Uint64:
    case BinaryTag::Double:
        return sizeof(std::uint64_t);
    default:
        return 0;
    }
}

// The bytes of one value, so that what stands behind it stays in the stream.
std::vector<char> takeValue(std::istream& stream)
{
    std::vector<char> bytes;
    if (takeBytes(stream, bytes, kTagSize) < kTagSize)
    {
        return bytes;
    }
    std::uint32_t number = 0;
    std::memcpy(&number, bytes.data(), kTagSize);
    const auto tag = static_cast<BinaryTag>(number);
    if (!hasSize(tag))
    {
        takeBytes(stream, bytes, numberSize(tag));
    }
    else if (takeBytes(stream, bytes, kSizeSize) == kSizeSize)
    {
        std::uint64_t size = 0;
        std::memcpy(&size, &bytes[kTagSize], kSizeSize);
        takeBytes(stream, bytes, payloadSize(tag, size));
    }
    return bytes;
}

// Checks the value at an even address, where its units can be read, and hands it on.
template <class Use>
void withCheckedValue(const char* data, std::uint64_t size, const ReadRules& rules, const Use& use)
{
    if (reinterpret_cast<std::uintptr_t>(data) % alignof(wchar) != 0) // NOLINT: the address itself is asked for
    {
        const Bytes aligned(data, data + size);
        use(checkBinary(aligned.data(), aligned.size(), rules));
        return;
    }
    use(checkBinary(data, size, rules));
}

} // namespace

void JsonBinaryIO::read(const char* data, std::uint64_t size, JsonValue& value, JsonAllocator& allocator)
{
    Decoder decoder(data, static_cast<std::size_t>(size));
    JsonDocument document(&allocator);
    document.Populate(decoder);
    if (decoder.begun())
    {
        value.Swap(static_cast<JsonValue&>(document));
    }
    decoder.finish(value);
}

std::istream& JsonBinaryIO::read(std::istream& stream, JsonValue& value, JsonAllocator& allocator)
{
    const std::vector<char> bytes = takeValue(stream);
    read(bytes.data(), bytes.size(), value, allocator);
    return stream;
}

void JsonBinaryIO::read(const char* data, std::uint64_t size, JsonValue& value, JsonAllocator& allocator,
                        const ReadRules& rules)
{
    withCheckedValue(data, size, rules, [&](BinaryValue) { read(data, size, value, allocator); });
}

void JsonBinaryIO::read(const char* data, std::uint64_t size, IJsonObject& object, const ReadRules& rules)
{
    withCheckedValue(data, size, rules, [&object](BinaryValue value) {
        kolt::LoggerHolder::levelEnabled(kolt::kTrace) ? readByTree(object, value) : readDirectly(object, value);
    });
}

} // namespace vrx
