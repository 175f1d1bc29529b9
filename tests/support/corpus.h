#pragma once

#include "mp/wide.h"

#include <vector>

namespace test
{

/// Texts that are easily lost on a road, each as the units that must arrive.
inline std::vector<mp::wstring> corpus()
{
    using namespace std::string_literals;
    const mp::wchar highSurrogate = 0xD800;
    const mp::wchar lowSurrogate = 0xDFFF;
    const mp::wchar noCharacter = 0xFFFF;
    std::vector<mp::wstring> texts = {
        mp::wstring(),
        WIDE("plain \"quoted\" back\\slash / \t\r\n \x7F \x01"),
        WIDE("M\u00FCller \u0394\u03C6 \u0416 \u05D0"),
        WIDE("\u90E8\u54C1 \u96F6\u4EF6 \uBD80\uD488"),
        WIDE("\U0001F529 \U0001F6E0\uFE0F \U0010FFFF"),
        mp::wstring{highSurrogate},
        mp::wstring{'a', lowSurrogate, highSurrogate, 'b'},
        mp::wstring{noCharacter, 'a', noCharacter, 0xFFFE, 0xFFFD, 0xFEFF},
        mp::wstring{'a', 'b', 0, 'c'},
        mp::wstring{0},
    };
    // Longer than the buffers of streams, so that every unit meets the end of one.
    texts.emplace_back(5000, noCharacter);
    texts.emplace_back(5001, highSurrogate);
    return texts;
}

} // namespace test
