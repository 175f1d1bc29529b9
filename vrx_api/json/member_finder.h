#pragma once

#include "vrx_api/json/key.h"

#include <bitset>
#include <cstring>
#include <optional>
#include <utility>

namespace vrx
{

/// Finds the members of an object by their names. The first member of a name wins, and a member whose name is no string
/// is passed over: the binary form can carry any value in a name's place.
///
/// As a rule members are asked for in the order in which they stand, each once, and the next one is it. When it is not,
/// the names are looked through, and a mark of each name spares most of that: two names of one mark only cost time.
template <class Value>
class MemberFinder
{
public:
    /// A value that is no object has no members.
    explicit MemberFinder(const Value& value)
        : m_begin(value.isObject() ? value.members().begin() : Place())
        , m_next(m_begin)
        , m_end(value.isObject() ? value.members().end() : Place())
    {
    }

    /// The value of the first member of this name, or one that is not there. A name may be asked for once only.
    Value find(Key key)
    {
        if (m_next == m_end || !isNamed(*m_next, key) || (m_passed && m_passed->mayHold(key)))
        {
            return findAnywhere(key);
        }
        const Value value = (*m_next).value;
        ++m_next;
        return value;
    }

private:
    using Member = typename Value::Member;
    using Place = decltype(std::declval<Value>().members().begin());

    // What is known of the names of a set of members.
    class Marks
    {
    public:
        void add(const Member& member)
        {
            if (member.name.isString())
            {
                m_marks.set(markOf(member.name.units()));
            }
        }

        bool mayHold(Key key) const { return m_marks.test(markOf({key.text, key.size})); }

    private:
        static constexpr std::size_t kCount = 256;

        static std::size_t markOf(wstring_view name)
        {
            const auto unitOf = [name](std::size_t at) { return std::size_t{name[at]}; };
            const std::size_t size = name.size();
            return size == 0 ? 0 : (size + 3 * unitOf(0) + 5 * unitOf(size - 1) + 7 * unitOf(size / 2)) % kCount;
        }

        std::bitset<kCount> m_marks;
    };

    static bool isNamed(const Member& member, Key key)
    {
        if (!member.name.isString())
        {
            return false;
        }
        const wstring_view name = member.name.units();
        return name.size() == key.size && std::memcmp(name.data(), key.text, key.size * sizeof(wchar)) == 0;
    }

    Value findAnywhere(Key key)
    {
        if (!m_names)
        {
            m_names.emplace();
            for (Place member = m_begin; member != m_end; ++member)
            {
                m_names->add(*member);
            }
        }
        if (!m_names->mayHold(key))
        {
            return Value(nullptr);
        }
        // Members that are passed on the way to one further on are not next any more.
        Marks passed = m_passed.value_or(Marks());
        bool isFurther = false;
        for (Place member = m_begin; member != m_end; ++member)
        {
            isFurther = isFurther || member == m_next;
            if (isNamed(*member, key))
            {
                const Value value = (*member).value;
                if (isFurther)
                {
                    m_next = ++member;
                    m_passed = passed;
                }
                return value;
            }
            if (isFurther)
            {
                passed.add(*member);
            }
        }
        return Value(nullptr);
    }

    Place m_begin;
    Place m_next;
    Place m_end;
    std::optional<Marks> m_names;
    std::optional<Marks> m_passed;
};

} // namespace vrx
