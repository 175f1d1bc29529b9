#pragma once

#include <csignal>

/// While there is one, SIGTERM does not end the process but leaves a note: the import then ends behind an envelope,
/// where no shared memory is left that the host has not been told of.
class DelayedTermination
{
public:
    DelayedTermination()
    {
        std::signal(SIGTERM, [](int) { s_isDue = 1; });
    }
    DelayedTermination(const DelayedTermination&) = delete;
    DelayedTermination& operator=(const DelayedTermination&) = delete;
    ~DelayedTermination() { std::signal(SIGTERM, SIG_DFL); }

    /// Stays true once it is.
    static bool isDue() { return s_isDue != 0; }

private:
    inline static volatile std::sig_atomic_t s_isDue = 0;
};
