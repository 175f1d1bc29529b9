#pragma once

#include "vrx_api/json/binary_tag.h"
#include "vrx_api/json/value_range.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <type_traits>

namespace vrx
{

/// A value in the binary form, read where it lies. The bytes have been checked as a whole by `checkBinary`, and begin
/// at an even address. Its counterpart is TreeValue, which tells what the operations do.
class BinaryValue
{
public:
    struct Member;

    explicit BinaryValue(const char* at)
        : m_at(at)
    {
    }

    bool isThere() const { return m_at != nullptr; }

    const char* place() const { return m_at; }
    const char* next() const
    {
        static constexpr std::array<std::uint8_t, 11> kSizes{4, 4, 4, 12, 12, 12, 8, 8, 12, 12, 12};
        const BinaryTag own = tag();
        const char* const behind = m_at + kSizes[static_cast<std::size_t>(own)];
        const bool sized = own >= BinaryTag::Object && own <= BinaryTag::String;
        return !sized ? behind : own == BinaryTag::String ? behind + size() * sizeof(wchar) : behind + size();
    }

    bool isObject() const { return tag() == BinaryTag::Object; }
    bool isArray() const { return tag() == BinaryTag::Array; }
    bool isString() const { return tag() == BinaryTag::String; }

    template <class T>
    bool take(T& field) const
    {
        if constexpr (std::is_same_v<T, bool>)
        {
            const bool isBool = tag() == BinaryTag::True || tag() == BinaryTag::False;
            field = isBool ? tag() == BinaryTag::True : field;
            return isBool;
        }
        else if constexpr (std::is_floating_point_v<T>)
        {
            if (tag() != BinaryTag::Double)
            {
                return false;
            }
            field = static_cast<T>(load<double>(kTagSize));
            return true;
        }
        else
        {
            return takeInteger(field);
        }
    }

    wstring_view units() const
    {
        // The units were written as units, and lie at an even address.
        return {reinterpret_cast<const wchar*>(content()), size()}; // NOLINT
    }

    ValueRange<BinaryValue, const char*> elements() const { return {content(), content() + size()}; }

    /// As many as there are when all are of one size, as in bulk data; but never more than take the room of the bytes.
    template <class T>
    std::size_t expectedCount() const
    {
        const std::size_t all = size();
        const std::size_t first = all == 0 ? 1 : static_cast<std::size_t>(BinaryValue(content()).next() - content());
        return all / std::max(first, sizeof(T));
    }

    ValueRange<Member, const char*> members() const;

private:
    template <class T>
    T load(std::size_t offset) const
    {
        T value;
        std::memcpy(&value, m_at + offset, sizeof(T));
        return value;
    }

    BinaryTag tag() const { return load<BinaryTag>(0); }
    std::size_t size() const { return static_cast<std::size_t>(load<std::uint64_t>(kTagSize)); }
    const char* content() const { return m_at + kTagSize + kSizeSize; }

    // An integer is taken by its value, under whichever tag it stands.
    template <class T>
    bool takeInteger(T& field) const
    {
        switch (tag())
        {
        case BinaryTag::Int:
            return narrow(load<std::int32_t>(kTagSize), field);
        case BinaryTag::Uint:
            return narrow(load<std::uint32_t>(kTagSize), field);
        case BinaryTag::Int64:
            return narrow(load<std::int64_t>(kTagSize), field);
        case BinaryTag::Uint64:
            return narrow(load<std::uint64_t>(kTagSize), field);
        default:
            return false;
        }
    }

    template <class From, class To>
    static bool narrow(From value, To& field)
    {
        const auto cut = static_cast<To>(value);
        if (static_cast<From>(cut) != value || (cut < To{}) != (value < From{}))
        {
            return false;
        }
        field = cut;
        return true;
    }

    const char* m_at;
};

struct BinaryValue::Member
{
    explicit Member(const char* at)
        : name(at)
        , value(name.next())
    {
    }

    const char* next() const { return value.next(); }

    BinaryValue name;
    BinaryValue value;
};

inline ValueRange<BinaryValue::Member, const char*> BinaryValue::members() const
{
    return {content(), content() + size()};
}

} // namespace vrx
