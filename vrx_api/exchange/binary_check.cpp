#include "vrx_api/exchange/binary_check.h"

#include "vrx_api/json/binary_tag.h"
#include "vrx_api/json/rule_keeper.h"

#include <cstring>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

namespace vrx
{

namespace
{

// RapidJSON's most units of a string.
constexpr std::uint64_t kMostUnits = std::numeric_limits<std::uint32_t>::max();

// For a reader who asks for nothing, which must cost nothing.
struct NoRules
{
    static constexpr bool isStrict() { return false; }
    static void values(std::uint64_t) {}
    static void depth(std::uint64_t) {}
    static void beginObject() {}
    static void name(wstring_view) {}
    static void endObject() {}
};

// Goes over one value and all within it. Positions go by value, so that they stay in registers.
template <class Rules>
class Checker
{
public:
    Checker(const char* data, std::size_t size, Rules rules)
        : m_data(data)
        , m_end(data + size)
        , m_rules(std::move(rules))
    {
    }

    void check()
    {
        const char* next = checkValue(m_data);
        while (!m_outer.empty())
        {
            // A name stands before a value, even when the object ends behind it.
            if (next != m_end || m_nameAlone)
            {
                m_nameAlone = m_object && !m_nameAlone;
                next = m_nameAlone && m_rules.isStrict() ? checkName(next) : checkValue(next);
            }
            else
            {
                close();
            }
        }
        if (m_rules.isStrict() && next != m_end)
        {
            throw std::invalid_argument(binary_failure::kBytesBehind);
        }
    }

private:
    std::size_t remaining(const char* next) const { return static_cast<std::size_t>(m_end - next); }

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
        m_rules.values(1);
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
        constexpr std::size_t kStep = kTagSize + sizeof(T);
        const bool inArray = !m_object && !m_outer.empty();
        const char* const behindFirst = next;
        for (std::size_t left = inArray ? remaining(next) / kStep : 0; left != 0 && isTag(next, tag); --left)
        {
            next += kStep;
        }
        m_rules.values(static_cast<std::size_t>(next - behindFirst) / kStep);
        return next;
    }

    static bool isTag(const char* next, BinaryTag tag) { return std::memcmp(next, &tag, kTagSize) == 0; }

    const char* checkString(const char* next) const
    {
        const auto count = load<std::uint64_t>(next, binary_failure::kNoNumber);
        next += kSizeSize;
        if (count > remaining(next) / sizeof(wchar) || count > kMostUnits)
        {
            throw std::length_error(binary_failure::kNoString);
        }
        return next + count * sizeof(wchar);
    }

    const char* checkName(const char* next)
    {
        const char* const behind = checkValue(next);
        if (!isTag(next, BinaryTag::String))
        {
            throw std::invalid_argument(binary_failure::kNameNoString);
        }
        m_rules.name(BinaryValue(next).units());
        return behind;
    }

    const char* open(const char* next, bool object)
    {
        const auto size = load<std::uint64_t>(next, binary_failure::kNoNumber);
        next += kSizeSize;
        if (size > remaining(next))
        {
            throw std::length_error(binary_failure::kNoArray);
        }
        // One word a container.
        m_outer.push_back(static_cast<std::uint64_t>(m_end - m_data) << 2U | (m_object ? 2U : 0U) |
                          (m_nameAlone ? 1U : 0U));
        m_end = next + size;
        m_object = object;
        m_nameAlone = false;
        m_rules.depth(m_outer.size());
        if (object)
        {
            m_rules.beginObject();
        }
        return next;
    }

    void close()
    {
        if (m_object)
        {
            m_rules.endObject();
        }
        const std::uint64_t container = m_outer.back();
        m_outer.pop_back();
        m_end = m_data + (container >> 2U);
        m_object = (container & 2U) != 0;
        m_nameAlone = (container & 1U) != 0;
    }

    const char* m_data;
    const char* m_end;
    bool m_object = false;
    bool m_nameAlone = false;
    std::vector<std::uint64_t> m_outer;
    Rules m_rules;
};

} // namespace

BinaryValue checkBinary(const char* data, std::uint64_t size, const ReadRules& rules)
{
    const auto all = static_cast<std::size_t>(size);
    rules.hasRulesOfForm() ? Checker(data, all, RuleKeeper(rules)).check() : Checker(data, all, NoRules()).check();
    return BinaryValue(data);
}

} // namespace vrx
