#include "console/progress.h"

#include "console/console.h"

#include <iostream>

namespace console
{

constexpr std::chrono::seconds kPatience(1);
constexpr std::chrono::milliseconds kPause(200);
constexpr const char* kEmptyLine = "\r\x1B[K";

Progress::Progress()
    : m_isWanted(isErrorTerminal() && !isOutputTerminal())
    , m_next(Clock::now() + kPatience)
{
}

Progress::~Progress()
{
    if (m_isShown)
    {
        std::cerr << kEmptyLine << std::flush;
    }
}

void Progress::step(const std::string& text)
{
    const Clock::time_point now = m_isWanted ? Clock::now() : Clock::time_point();
    if (!m_isWanted || now < m_next)
    {
        return;
    }
    m_next = now + kPause;
    m_isShown = true;
    std::cerr << kEmptyLine << text << std::flush;
}

} // namespace console
