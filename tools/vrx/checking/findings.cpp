#include "checking/findings.h"

namespace checking
{

Findings::Findings(Give give, std::set<ECode> ignored, std::size_t mostOfACode)
    : m_give(std::move(give))
    , m_ignored(std::move(ignored))
    , m_mostOfACode(mostOfACode)
{
}

void Findings::endMessage(std::size_t message)
{
    for (std::size_t i = 0; i < m_counts.size(); ++i)
    {
        const std::size_t count = std::exchange(m_counts[i], 0);
        m_count += count;
        if (count > m_mostOfACode)
        {
            give({static_cast<ECode>(i),
                  {message, {}},
                  std::to_string(count - m_mostOfACode) + (message == 0 ? " more of this in all" : " more of this")});
        }
    }
}

} // namespace checking
