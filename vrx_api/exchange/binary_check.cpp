#include "vrx_api/exchange/binary_check.h"

#include "vrx_api/json/binary_tag.h"

#include <cstring>
#include <limits>
#include <stdexcept>
#include <vector>

namespace vrx
{

namespace
{

constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();

// Goes over one value and all within it. Positions go by value, so that they stay in registers.
class Checker
{
public:
    Checker(const char* data, std::size_t size)
        : m_innermost{data + size, 0, false}
    {
    }

    void check(const char* next)
    {
        next = checkValue(next);
        while (!m_outer.empty())
        {
            // A name stands before a value, even when the object ends behind it.
            if (next != m_innermost.end || (m_innermost.object && m_innermost.count % 2 != 0))
            {
                ++m_innermost.count;
                next = checkValue(next);
            }
            else
            {
                close();
            }
        }
    }

private:
    struct Container
    {
        const char* end;
        std::uint64_t count; // children, an object's names among them
        bool object;
    };

    std::size_t remaining(const char* next) const { return static_cast<std::size_t>(m_innermost.end - next); }

    template <class T>
    T load(const char* next, const char* failure) const
    {
        T value;
        if (remaining(next) < sizeof(T))
        {
            throw std::length_error(failure);
        }
        std::memcpy(&value, next, sizeof(T));
        return value;
    }

    const char* checkValue(const char* next)
    {
        const auto tag = load<BinaryTag>(next, binary_failure::kNoType);
        next += kTagSize;
        switch (tag)
        {
        case BinaryTag::Null:
        case BinaryTag::False:
        case BinaryTag::True:
            return next;
        case BinaryTag::Object:
            return open(next, true);
        case BinaryTag::Array:
            return open(next, false);
        case BinaryTag::String:
            return checkString(next);
        case BinaryTag::Int:
        case BinaryTag::Uint:
            return checkNumbers<std::uint32_t>(next, tag);
        case BinaryTag::Int64:
        case BinaryTag::Uint64:
        case BinaryTag::Double:
            return checkNumbers<std::uint64_t>(next, tag);
        }
        throw std::invalid_argument(binary_failure::kUnknownType);
    }

    // A number behind its tag, and in an array all that follow under the same tag, as they do in bulk data.
    template <class T>
    const char* checkNumbers(const char* next, BinaryTag tag)
    {
        load<T>(next, binary_failure::kNoNumber);
        next += sizeof(T);
        if (m_outer.empty() || m_innermost.object)
        {
            return next;
        }
        const char* const first = next;
        constexpr std::size_t kStep = kTagSize + sizeof(T);
        for (std::size_t left = remaining(next) / kStep; left != 0 && isTag(next, tag); --left)
        {
            next += kStep;
        }
        m_innermost.count += static_cast<std::size_t>(next - first) / kStep;
        return next;
    }

    static bool isTag(const char* next, BinaryTag tag) { return std::memcmp(next, &tag, kTagSize) == 0; }

    const char* checkString(const char* next) const
    {
        const auto count = load<std::uint64_t>(next, binary_failure::kNoNumber);
        next += kSizeSize;
        if (count > remaining(next) / sizeof(wchar) || count > kMost)
        {
            throw std::length_error(binary_failure::kNoString);
        }
        return next + count * sizeof(wchar);
    }

    const char* open(const char* next, bool object)
    {
        const auto size = load<std::uint64_t>(next, binary_failure::kNoNumber);
        next += kSizeSize;
        if (size > remaining(next))
        {
            throw std::length_error(binary_failure::kNoArray);
        }
        m_outer.push_back(m_innermost);
        m_innermost = {next + size, 0, object};
        return next;
    }

    void close()
    {
        if ((m_innermost.object ? m_innermost.count / 2 : m_innermost.count) > kMost)
        {
            throw std::length_error(binary_failure::kTooMany);
        }
        m_innermost = m_outer.back();
        m_outer.pop_back();
    }

    Container m_innermost;
    std::vector<Container> m_outer;
};

} // namespace

BinaryValue checkBinary(const char* data, std::uint64_t size)
{
    Checker(data, static_cast<std::size_t>(size)).check(data);
    return BinaryValue(data);
}

} // namespace vrx
