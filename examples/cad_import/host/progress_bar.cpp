#include "progress_bar.h"

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <iostream>

ProgressBar::EMode ProgressBar::modeOfStandardError()
{
    return ::isatty(STDERR_FILENO) != 0 ? EMode::Terminal : EMode::Plain;
}

void ProgressBar::show(const std::string& stage, int progress, int max)
{
    if (m_mode == EMode::Plain && stage != m_stage)
    {
        std::cerr << stage << '\n';
    }
    m_stage = stage;
    if (m_mode != EMode::Terminal)
    {
        return;
    }
    const int width = 30;
    const double share = max > 0 ? std::clamp(static_cast<double>(progress) / max, 0.0, 1.0) : 0.0;
    const auto filled = static_cast<std::size_t>(share * width);
    const std::string bar = '[' + std::string(filled, '#') + std::string(width - filled, '-') + "] " +
                            std::to_string(static_cast<int>(share * 100)) + " % " + stage;
    if (bar != m_drawn)
    {
        clear();
        std::cerr << bar << std::flush;
        m_drawn = bar;
    }
}

void ProgressBar::clear()
{
    if (!m_drawn.empty())
    {
        std::cerr << "\r\033[K" << std::flush;
        m_drawn.clear();
    }
}
