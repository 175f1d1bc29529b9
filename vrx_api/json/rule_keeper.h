#pragma once

#include "vrx_api/json/name_marks.h"
#include "vrx_api/json/read_rules.h"

#include <cstddef>
#include <vector>

namespace vrx
{

/// Holds what is read against a reader's rules, value by value in the order of the text.
/// Throws `std::length_error` for what is above a limit, and `std::invalid_argument` for what a strict reader refuses.
class RuleKeeper
{
public:
    explicit RuleKeeper(const ReadRules& rules)
        : m_rules(rules)
        , m_valuesLeft(rules.values)
        , m_objectsLeft(rules.objects)
    {
    }

    bool isStrict() const { return m_rules.isStrict; }

    void values(std::uint64_t count)
    {
        if (count > m_valuesLeft)
        {
            failByValues();
        }
        m_valuesLeft -= count;
    }

    /// An object or an array begins, as the innermost of so many.
    void begin(std::uint64_t depth)
    {
        if (depth > m_rules.depth)
        {
            failByDepth();
        }
        if (m_objectsLeft == 0)
        {
            failByObjects();
        }
        --m_objectsLeft;
    }

    /// For strict readers: an object begins, has a name, which stays where it is, and ends.
    void beginObject()
    {
        if (isStrict())
        {
            m_objects.push_back({m_names.size(), {}, false});
        }
    }
    void name(wstring_view name)
    {
        if (!isStrict())
        {
            return;
        }
        Object& object = m_objects.back();
        object.mayHoldTwice = object.mayHoldTwice || object.marks.mayHold(name);
        object.marks.add(name);
        m_names.push_back(name);
    }
    void endObject()
    {
        if (isStrict())
        {
            requireNamesOnce();
        }
    }

private:
    struct Object
    {
        std::size_t firstName;
        NameMarks marks;
        bool mayHoldTwice;
    };

    void requireNamesOnce();
    [[noreturn]] void failByValues() const;
    [[noreturn]] void failByObjects() const;
    [[noreturn]] void failByDepth() const;

    const ReadRules m_rules;
    std::uint64_t m_valuesLeft;
    std::uint64_t m_objectsLeft;
    std::vector<Object> m_objects;     // that are open
    std::vector<wstring_view> m_names; // of all of them
};

} // namespace vrx
