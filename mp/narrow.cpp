#include "mp/narrow.h"

#ifdef _WIN32
#include <windows.h>

#include <limits>
#include <stdexcept>
#endif

namespace mp
{

#ifdef _WIN32

namespace
{

int sizeForWindows(std::size_t size)
{
    if (size > static_cast<std::size_t>((std::numeric_limits<int>::max)()))
    {
        throw std::length_error("Text is too long for the code page conversion");
    }
    return static_cast<int>(size);
}

} // namespace

std::string toNarrow(wstring_view text)
{
    const int size = sizeForWindows(text.size());
    if (size == 0)
    {
        return {};
    }
    const int narrowSize = WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(narrowSize), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), size, narrow.data(), narrowSize, nullptr, nullptr);
    return narrow;
}

wstring toWide(std::string_view text)
{
    const int size = sizeForWindows(text.size());
    if (size == 0)
    {
        return {};
    }
    const int wideSize = MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
    wstring wide(static_cast<std::size_t>(wideSize), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), wideSize);
    return wide;
}

#else

namespace
{

constexpr char32_t kReplacement = 0xFFFD;

bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void appendUtf8(std::string& narrow, char32_t character)
{
    const auto append = [&narrow](char32_t byte) { narrow.push_back(static_cast<char>(byte)); };
    if (character < 0x80)
    {
        append(character);
    }
    else if (character < 0x800)
    {
        append(0xC0 | character >> 6);
        append(0x80 | (character & 0x3F));
    }
    else if (character < 0x10000)
    {
        append(0xE0 | character >> 12);
        append(0x80 | (character >> 6 & 0x3F));
        append(0x80 | (character & 0x3F));
    }
    else
    {
        append(0xF0 | character >> 18);
        append(0x80 | (character >> 12 & 0x3F));
        append(0x80 | (character >> 6 & 0x3F));
        append(0x80 | (character & 0x3F));
    }
}

// The character that begins at the position, which moves behind it; malformed bytes give one replacement each.
// The bounds are those of RFC 3629, section 4.
char32_t nextUtf8(std::string_view text, std::size_t& position)
{
    const auto byte = [&text](std::size_t at) { return static_cast<char32_t>(static_cast<unsigned char>(text[at])); };
    const char32_t first = byte(position++);
    if (first < 0x80)
    {
        return first;
    }
    const std::size_t trailing = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4 || text.size() - position < trailing)
    {
        return kReplacement;
    }
    char32_t character = first & (0x3FU >> trailing);
    for (std::size_t i = 0; i < trailing; ++i)
    {
        if ((byte(position + i) & 0xC0) != 0x80)
        {
            return kReplacement;
        }
        character = character << 6 | (byte(position + i) & 0x3F);
    }
    const bool overlong = (trailing == 2 && character < 0x800) || (trailing == 3 && character < 0x10000);
    if (overlong || character > 0x10FFFF || isHighSurrogate(character) || isLowSurrogate(character))
    {
        return kReplacement;
    }
    position += trailing;
    return character;
}

} // namespace

std::string toNarrow(wstring_view text)
{
    std::string narrow;
    narrow.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const char32_t unit = text[i];
        if (isHighSurrogate(unit) && i + 1 < text.size() && isLowSurrogate(text[i + 1]))
        {
            ++i;
            appendUtf8(narrow, 0x10000 + ((unit - 0xD800) << 10) + (text[i] - 0xDC00U));
        }
        else
        {
            appendUtf8(narrow, isHighSurrogate(unit) || isLowSurrogate(unit) ? kReplacement : unit);
        }
    }
    return narrow;
}

wstring toWide(std::string_view text)
{
    wstring wide;
    wide.reserve(text.size());
    for (std::size_t position = 0; position < text.size();)
    {
        const char32_t character = nextUtf8(text, position);
        if (character < 0x10000)
        {
            wide.push_back(static_cast<wchar>(character));
        }
        else
        {
            wide.push_back(static_cast<wchar>(0xD800 + ((character - 0x10000) >> 10)));
            wide.push_back(static_cast<wchar>(0xDC00 + ((character - 0x10000) & 0x3FF)));
        }
    }
    return wide;
}

#endif

} // namespace mp
