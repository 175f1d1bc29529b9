#pragma once

#include <string>

/// Progress on standard error: a bar that is drawn over and over on a terminal, otherwise a line for each new stage.
class ProgressBar
{
public:
    enum class EMode
    {
        Silent,
        Plain,
        Terminal,
    };

    explicit ProgressBar(EMode mode)
        : m_mode(mode)
    {
    }

    /// Terminal or plain, by what standard error is.
    static EMode modeOfStandardError();

    void show(const std::string& stage, int progress, int max);

    /// Takes the bar off the terminal, so that other text can be printed.
    void clear();

private:
    EMode m_mode;
    std::string m_stage;
    std::string m_drawn;
};
