#pragma once

#include "mp/narrow.h"

#include <algorithm>
#include <string>

/// A text as it may be printed: names and messages come from files, and nothing in them may steer the terminal.
inline std::string printable(mp::wstring text)
{
    std::replace_if(
        text.begin(), text.end(), [](mp::wchar c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }, WIDE(' '));
    return mp::toNarrow(text);
}
