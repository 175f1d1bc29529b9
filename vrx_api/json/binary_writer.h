#pragma once

#include "vrx_api/json/binary_tag.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/json/key.h"

#include <cstring>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

namespace vrx
{

// Two walks make the binary form: with a SizeWriter, which only adds the sizes up, so that the bytes are allocated
// once, and then with a ByteWriter, which writes them. Values are stored as the machine holds them, which is
// little-endian on all platforms.

/// The trees of objects that have no direct way, in the order of the walk. Each object is asked once, by the first
/// walk; what that changed in other objects is counted again, by another one.
using ObjectTrees = std::vector<std::unique_ptr<JsonDocument>>;

/// The smallest of the integers' forms that holds the value.
template <class T>
constexpr BinaryTag integerTag(T value)
{
    constexpr auto kMaxInt = std::numeric_limits<std::int32_t>::max();
    constexpr auto kMinInt = std::numeric_limits<std::int32_t>::min();
    constexpr auto kMaxUint = std::numeric_limits<std::uint32_t>::max();
    constexpr auto kMaxInt64 = std::numeric_limits<std::int64_t>::max();
    if constexpr (std::is_signed_v<T>)
    {
        if (value < 0)
        {
            return value >= kMinInt ? BinaryTag::Int : BinaryTag::Int64;
        }
    }
    const auto size = static_cast<std::uint64_t>(value);
    return size <= kMaxInt     ? BinaryTag::Int
           : size <= kMaxUint  ? BinaryTag::Uint
           : size <= kMaxInt64 ? BinaryTag::Int64
                               : BinaryTag::Uint64;
}

class SizeWriter
{
public:
    struct Mark
    {
    };

    /// Takes the trees that are there, in their order, and adds those that are missing.
    explicit SizeWriter(ObjectTrees& trees)
        : m_trees(trees)
    {
    }

    std::size_t size() const { return m_size; }

    void null() { m_size += kTagSize; }

    template <class T>
    void scalar(T value)
    {
        m_size += kTagSize;
        if constexpr (std::is_same_v<T, double>)
        {
            m_size += sizeof(double);
        }
        else if constexpr (!std::is_same_v<T, bool>)
        {
            m_size += integerTag(value) <= BinaryTag::Uint ? sizeof(std::uint32_t) : sizeof(std::uint64_t);
        }
    }

    void text(wstring_view text) { m_size += kTagSize + kSizeSize + text.size() * sizeof(wchar); }
    void name(wstring_view name) { text(name); }
    void key(Key key) { text({key.text, key.size}); }

    Mark beginObject() { return begin(); }
    void endObject(Mark) {}
    Mark beginArray() { return begin(); }
    void endArray(Mark) {}

    /// An object that has no direct way.
    void tree(const IJsonObject& object);

private:
    Mark begin()
    {
        m_size += kTagSize + kSizeSize;
        return {};
    }

    std::size_t m_size = 0;
    ObjectTrees& m_trees;
    std::size_t m_nextTree = 0;
};

class ByteWriter
{
public:
    /// Where the size of an object or an array is told.
    using Mark = char*;

    ByteWriter(char* at, const ObjectTrees& trees)
        : m_at(at)
        , m_nextTree(trees.data())
    {
    }

    void null() { put(BinaryTag::Null); }

    template <class T>
    void scalar(T value)
    {
        if constexpr (std::is_same_v<T, bool>)
        {
            put(value ? BinaryTag::True : BinaryTag::False);
        }
        else if constexpr (std::is_same_v<T, double>)
        {
            put(BinaryTag::Double);
            put(value);
        }
        else
        {
            const BinaryTag tag = integerTag(value);
            put(tag);
            tag <= BinaryTag::Uint ? put(static_cast<std::uint32_t>(value)) : put(static_cast<std::uint64_t>(value));
        }
    }

    void text(wstring_view text)
    {
        put(BinaryTag::String);
        put(std::uint64_t{text.size()});
        std::memcpy(m_at, text.data(), text.size() * sizeof(wchar));
        m_at += text.size() * sizeof(wchar);
    }
    void name(wstring_view name) { text(name); }
    void key(Key key) { text({key.text, key.size}); }

    Mark beginObject() { return begin(BinaryTag::Object); }
    void endObject(Mark begin) { end(begin); }
    Mark beginArray() { return begin(BinaryTag::Array); }
    void endArray(Mark begin) { end(begin); }

    void tree(const IJsonObject& object);

private:
    template <class T>
    void put(T value)
    {
        std::memcpy(m_at, &value, sizeof(T));
        m_at += sizeof(T);
    }

    Mark begin(BinaryTag tag)
    {
        put(tag);
        char* const begin = m_at;
        m_at += kSizeSize;
        return begin;
    }

    void end(Mark begin) const
    {
        const auto size = static_cast<std::uint64_t>(m_at - begin) - kSizeSize;
        std::memcpy(begin, &size, sizeof(size));
    }

    char* m_at;
    const std::unique_ptr<JsonDocument>* m_nextTree;
};

} // namespace vrx
