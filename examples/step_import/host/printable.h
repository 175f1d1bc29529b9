#pragma once

#include "mp/narrow.h"

#include <algorithm>
#include <string>

/// A name as it may be printed: names come from files, and nothing in them may steer the terminal.
inline std::string printable(const mp::wstring& text)
{
    std::string result = mp::toNarrow(text);
    std::replace_if(
        result.begin(), result.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
    return result;
}
