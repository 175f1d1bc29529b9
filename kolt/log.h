#pragma once

#include "kolt/logger.h"

namespace kolt
{

/// Writes one line when the level is enabled; otherwise costs one comparison.
template <class... Parts>
void log(int level, const Parts&... parts)
{
    if (LoggerHolder::levelEnabled(level))
    {
        MTLogger line(*LoggerHolder::logger());
        (line.begin(level) << ... << parts);
    }
}

/// A place in the sources, by default that of the caller.
struct SourcePlace
{
    /// The path of the source, as the compiler got it.
    const char* file;
    /// Counted from 1.
    unsigned line;
    /// The name without its parameters.
    const char* function;

    /// As a default argument it is the place of the call.
    static constexpr SourcePlace current(const char* file = __builtin_FILE(), unsigned line = __builtin_LINE(),
                                         const char* function = __builtin_FUNCTION())
    {
        return {file, line, function};
    }
};

/// The line at the entry of a function.
inline void trace(SourcePlace place = SourcePlace::current())
{
    log(kTrace, place.file, '(', place.line, "): ", place.function);
}

} // namespace kolt
