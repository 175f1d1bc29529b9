#include "vrx_api/json/rule_keeper.h"

#include "mp/narrow.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace vrx
{

void RuleKeeper::requireNamesOnce()
{
    const auto first = m_names.begin() + static_cast<std::ptrdiff_t>(m_objects.back().firstName);
    if (m_objects.back().mayHoldTwice)
    {
        std::sort(first, m_names.end());
        const auto twice = std::adjacent_find(first, m_names.end());
        if (twice != m_names.end())
        {
            constexpr std::size_t kMostUnits = 100;
            throw std::invalid_argument("An object has two members of the name " +
                                        mp::toNarrow(wstring(twice->substr(0, kMostUnits))));
        }
    }
    m_names.erase(first, m_names.end());
    m_objects.pop_back();
}

void RuleKeeper::failByValues() const
{
    throw std::length_error("The number of values is above the limit of " + std::to_string(m_rules.values));
}

void RuleKeeper::failByObjects() const
{
    throw std::length_error("The number of objects and arrays is above the limit of " +
                            std::to_string(m_rules.objects));
}

void RuleKeeper::failByDepth() const
{
    throw std::length_error("The depth is above the limit of " + std::to_string(m_rules.depth));
}

} // namespace vrx
