#pragma once

#include "vrx_api/json/key.h"
#include "vrx_api/json/name_marks.h"

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
        if (m_next == m_end || !isNamed(*m_next, key) || (m_passed && mayHold(*m_passed, key)))
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

    static void mark(NameMarks& marks, const Member& member)
    {
        if (member.name.isString())
        {
            marks.add(member.name.units());
        }
    }

    static bool mayHold(const NameMarks& marks, Key key) { return marks.mayHold({key.text, key.size}); }

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
                mark(*m_names, *member);
            }
        }
        if (!mayHold(*m_names, key))
        {
            return Value(nullptr);
        }
        // Members that are passed on the way to one further on are not next any more.
        NameMarks passed = m_passed.value_or(NameMarks());
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
                mark(passed, *member);
            }
        }
        return Value(nullptr);
    }

    Place m_begin;
    Place m_next;
    Place m_end;
    std::optional<NameMarks> m_names;
    std::optional<NameMarks> m_passed;
};

} // namespace vrx
