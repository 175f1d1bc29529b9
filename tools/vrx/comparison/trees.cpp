#include "comparison/trees.h"

#include "comparison/pairs.h"
#include "json/member.h"
#include "json/pointer.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace comparison
{

namespace
{

constexpr std::size_t kMostOfArray = 5;
constexpr std::size_t kMostParts = 100; // at each end of a pointer

bool areNumbersEqual(const vrx::JsonValue& a, const vrx::JsonValue& b, double tolerance)
{
    if (!a.IsDouble() && !b.IsDouble())
    {
        return a == b;
    }
    const double x = a.GetDouble();
    const double y = b.GetDouble();
    if (x == y || (std::isnan(x) && std::isnan(y)))
    {
        return true;
    }
    const double least = std::max(1.0, std::max(std::abs(x), std::abs(y)));
    return std::isfinite(x) && std::isfinite(y) && std::abs(x - y) <= tolerance * least;
}

bool areScalarsEqual(const vrx::JsonValue& a, const vrx::JsonValue& b, double tolerance)
{
    if (a.IsNumber() && b.IsNumber())
    {
        return areNumbersEqual(a, b, tolerance);
    }
    if (a.IsString() && b.IsString())
    {
        return json::textOf(a) == json::textOf(b);
    }
    return a.GetType() == b.GetType();
}

class Comparison
{
public:
    Comparison(const Rules& rules, const std::function<void(const Difference&)>& report, bool onlyFirst = false)
        : m_rules(rules)
        , m_report(report)
        , m_onlyFirst(onlyFirst)
    {
    }

    void compare(const vrx::JsonValue& a, const vrx::JsonValue& b)
    {
        take({{}, 0, 0, &a, &b, nullptr});
        while (!m_open.empty() && !m_isDone)
        {
            Level& level = m_open.back();
            if (level.pairs.atEnd())
            {
                close();
                continue;
            }
            const Pair pair = level.pairs.next();
            if (!level.pairs.isObject() || m_rules.ignoredKeys.count(pair.name) == 0)
            {
                take(pair);
            }
        }
    }

private:
    struct Level
    {
        Pairs pairs;
        std::uint64_t differing = 0; // children of an array that differ as a whole
    };

    void take(const Pair& pair)
    {
        const bool areBoth = pair.a != nullptr && pair.b != nullptr;
        if (areBoth && ((pair.a->IsObject() && pair.b->IsObject()) || (pair.a->IsArray() && pair.b->IsArray())))
        {
            m_open.push_back({Pairs(*pair.a, *pair.b)});
        }
        else if (!areBoth || !areScalarsEqual(*pair.a, *pair.b, m_rules.tolerance))
        {
            differ(pair);
        }
    }

    void differ(const Pair& pair)
    {
        const bool isElement = !m_open.empty() && !m_open.back().pairs.isObject();
        if (isElement && ++m_open.back().differing > kMostOfArray && !m_rules.all)
        {
            return;
        }
        m_report({pointer(m_open.size(), pair.a == nullptr), id(m_open.size()), pair.a, pair.b});
        m_isDone = m_onlyFirst;
    }

    void close()
    {
        const std::uint64_t differing = m_open.back().differing;
        if (differing > kMostOfArray && !m_rules.all)
        {
            const std::size_t around = m_open.size() - 1;
            m_report({pointer(around, false), id(around), nullptr, nullptr, differing - kMostOfArray});
        }
        m_open.pop_back();
    }

    // The way through so many of the open containers of A or of B.
    std::string pointer(std::size_t depth, bool inB) const
    {
        std::string text;
        for (std::size_t i = 0; i < depth; ++i)
        {
            if (i == kMostParts && depth > 2 * kMostParts)
            {
                text += "/...";
                i = depth - kMostParts;
            }
            const Pair& pair = m_open[i].pairs.current();
            const std::size_t place = inB ? pair.placeInB : pair.placeInA;
            text += m_open[i].pairs.isObject() ? json::pointerPart(pair.name) : '/' + std::to_string(place);
        }
        return text;
    }

    // That of the innermost object on this way that has one.
    const vrx::JsonValue* id(std::size_t depth) const
    {
        while (depth != 0 && m_open[depth - 1].pairs.current().id == nullptr)
        {
            --depth;
        }
        return depth == 0 ? nullptr : m_open[depth - 1].pairs.current().id;
    }

    const Rules& m_rules;
    const std::function<void(const Difference&)>& m_report;
    bool m_onlyFirst;
    bool m_isDone = false;
    std::vector<Level> m_open;
};

} // namespace

void compareTrees(const vrx::JsonValue& a, const vrx::JsonValue& b, const Rules& rules,
                  const std::function<void(const Difference&)>& report)
{
    Comparison(rules, report).compare(a, b);
}

bool areTreesEqual(const vrx::JsonValue& a, const vrx::JsonValue& b, const Rules& rules)
{
    bool areEqual = true;
    const std::function<void(const Difference&)> report = [&areEqual](const Difference&) { areEqual = false; };
    Comparison(rules, report, true).compare(a, b);
    return areEqual;
}

} // namespace comparison
