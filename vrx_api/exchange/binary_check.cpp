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

// Goes over one value and all within it.
class Checker
{
public:
    Checker(const char* data, std::size_t size)
        : m_next(data)
        , m_innermost{data + size, 0, false}
    {
    }

    void check()
    {
        checkValue();
        while (!m_outer.empty())
        {
            // A name stands before a value, even when the object ends behind it.
            if (m_next != m_innermost.end || (m_innermost.object && m_innermost.count % 2 != 0))
            {
                ++m_innermost.count;
                checkValue();
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

    std::size_t remaining() const { return static_cast<std::size_t>(m_innermost.end - m_next); }

    template <class T>
    T take(const char* failure)
    {
        T value;
        if (remaining() < sizeof(T))
        {
            throw std::length_error(failure);
        }
        std::memcpy(&value, m_next, sizeof(T));
        m_next += sizeof(T);
        return value;
    }

    void checkValue()
    {
        switch (take<BinaryTag>(binary_failure::kNoType))
        {
        case BinaryTag::Null:
        case BinaryTag::False:
        case BinaryTag::True:
            return;
        case BinaryTag::Object:
            return open(true);
        case BinaryTag::Array:
            return open(false);
        case BinaryTag::String:
            return checkString();
        case BinaryTag::Int:
        case BinaryTag::Uint:
            take<std::uint32_t>(binary_failure::kNoNumber);
            return;
        case BinaryTag::Int64:
        case BinaryTag::Uint64:
        case BinaryTag::Double:
            take<std::uint64_t>(binary_failure::kNoNumber);
            return;
        }
        throw std::invalid_argument(binary_failure::kUnknownType);
    }

    void checkString()
    {
        const auto count = take<std::uint64_t>(binary_failure::kNoNumber);
        if (count > remaining() / sizeof(wchar) || count > kMost)
        {
            throw std::length_error(binary_failure::kNoString);
        }
        m_next += count * sizeof(wchar);
    }

    void open(bool object)
    {
        const auto size = take<std::uint64_t>(binary_failure::kNoNumber);
        if (size > remaining())
        {
            throw std::length_error(binary_failure::kNoArray);
        }
        m_outer.push_back(m_innermost);
        m_innermost = {m_next + size, 0, object};
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

    const char* m_next;
    Container m_innermost;
    std::vector<Container> m_outer;
};

} // namespace

BinaryValue checkBinary(const char* data, std::uint64_t size)
{
    Checker(data, static_cast<std::size_t>(size)).check();
    return BinaryValue(data);
}

} // namespace vrx
