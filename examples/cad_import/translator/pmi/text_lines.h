#pragma once

#include "mp/wide.h"

/// Adds a line to a text of several.
inline void addLine(mp::wstring& text, const mp::wstring& line)
{
    text += (text.empty() ? WIDE("") : WIDE("\n")) + line;
}
