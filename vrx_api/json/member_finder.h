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
        : m_all(value.isObject() ? value.members() : Members())
        , m_left(m_all)
    {
    }

    /// The value of the first member of this name. A name may be asked for once only.
    std::optional<Value> find(Key key)
    {
        if (m_left.begin() == m_left.end() || !isNamed(*m_left.begin(), key) || (m_passed && m_passed->mayHold(key)))
        {
            return findAnywhere(key);
        }
        const Value value = (*m_left.begin()).value;
        m_left.dropFirst();
        return value;
    }

private:
    using Members = decltype(std::declval<Value>().members());
    using Member = typename Value::Member;

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
            const std::size_t size = name.size();
            return size == 0 ? 0 : (size + 3U * name.front() + 5U * name.back() + 7U * name[size / 2]) % kCount;
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

    std::optional<Value> findAnywhere(Key key)
    {
        if (!m_names)
        {
            m_names.emplace();
            for (const Member member : m_all)
            {
                m_names->add(member);
            }
        }
        if (!m_names->mayHold(key))
        {
            return std::nullopt;
        }
        for (auto member = m_all.begin(); member != m_all.end(); ++member)
        {
            if (isNamed(*member, key))
            {
                pass(member);
                return (*member).value;
            }
        }
        return std::nullopt;
    }

    // The members before one that stands further on are not asked for in their order any more.
    template <class Place>
    void pass(Place found)
    {
        Members left = m_left;
        Marks passed = m_passed.value_or(Marks());
        for (; left.begin() != left.end() && left.begin() != found; left.dropFirst())
        {
            passed.add(*left.begin());
        }
        if (left.begin() != left.end())
        {
            left.dropFirst();
            m_left = left;
            m_passed = passed;
        }
    }

    Members m_all;
    Members m_left;
    std::optional<Marks> m_names;
    std::optional<Marks> m_passed;
};

} // namespace vrx
