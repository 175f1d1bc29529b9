#include "printing/escaped.h"

#include "json/utf.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace printing
{

namespace
{

struct Range
{
    char32_t first;
    char32_t last;
};

constexpr std::array<Range, 12> kEscaped = {{
    {0x00, 0x1F},       // controls
    {0x7F, 0x9F},       // controls, those of terminals with 8 bits among them
    {0xAD, 0xAD},       // the soft hyphen
    {0x61C, 0x61C},     // marks and overrides of direction
    {0x200E, 0x200F},   //
    {0x2028, 0x202E},   // with the separators of lines and paragraphs before them
    {0x2066, 0x2069},   //
    {0xD800, 0xDFFF},   // lone surrogates
    {0xFEFF, 0xFEFF},   // the byte order mark
    {0xFFF9, 0xFFFB},   // annotations
    {0xFFFE, 0xFFFF},   // no characters
    {0xE0000, 0xE007F}, // invisible tags
}};

bool isEscaped(char32_t character)
{
    return std::any_of(kEscaped.begin(), kEscaped.end(),
                       [character](const Range& range) { return character >= range.first && character <= range.last; });
}

void appendEscape(std::string& out, mp::wchar unit)
{
    switch (unit)
    {
    case '\n':
        out += "\\n";
        return;
    case '\r':
        out += "\\r";
        return;
    case '\t':
        out += "\\t";
        return;
    default:
        break;
    }
    std::array<char, 8> digits{};
    std::snprintf(digits.data(), digits.size(), "\\u%04X", static_cast<unsigned>(unit));
    out += digits.data();
}

std::string escapedWith(mp::wstring_view text, mp::wstring_view marks)
{
    std::string out;
    out.reserve(text.size() + 2);
    for (std::size_t place = 0; place < text.size();)
    {
        const std::size_t begin = place;
        const char32_t character = json::nextCharacter(text, place);
        if (isEscaped(character))
        {
            std::for_each(text.begin() + static_cast<std::ptrdiff_t>(begin),
                          text.begin() + static_cast<std::ptrdiff_t>(place),
                          [&out](mp::wchar unit) { appendEscape(out, unit); });
            continue;
        }
        if (marks.find(text[begin]) != mp::wstring_view::npos)
        {
            out.push_back('\\');
        }
        json::appendUtf8(out, character);
    }
    return out;
}

} // namespace

std::string escaped(mp::wstring_view text)
{
    return escapedWith(text, WIDE("\"\\"));
}

std::string harmless(mp::wstring_view text)
{
    return escapedWith(text, {});
}

std::string quoted(mp::wstring_view text)
{
    return '"' + escaped(text) + '"';
}

} // namespace printing
