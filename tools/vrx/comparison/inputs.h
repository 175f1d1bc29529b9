#pragma once

#include "comparison/trees.h"
#include "input/input.h"

#include <cstdint>
#include <functional>
#include <string>

namespace comparison
{

/// One line of a comparison: what differs, and where.
struct Line
{
    std::string message;      ///< Of captures: which one; empty otherwise.
    const Difference* inTree; ///< Null for a difference of the messages themselves: `text` tells it.
    std::string text;
};

/// Which of the two inputs is a recording that did not come to its end.
struct Cuts
{
    bool a = false;
    bool b = false;
};

/// Compares two inputs. Messages of captures are paired by sender, class and block: equal ones first, and what is left
/// in its order; an object that stands alone with what stands alone. Progress and log messages, and times, are compared
/// only where all is asked for. The names of buffers are no difference, nor is their compression. The first input is
/// held in memory, and of the second what has no equal.
Cuts compareInputs(const std::string& a, const std::string& b, const Rules& rules, std::uint64_t limit,
                   const std::function<void(const Line&)>& report);

} // namespace comparison
