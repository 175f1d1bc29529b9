#pragma once

#include "mp/wide.h"

#include <string>
#include <string_view>

/// UTF-8 on every platform, whatever the system's code page is.
namespace json
{

/// The wide text of UTF-8. Throws tool::InputError with the place of the first malformed byte.
mp::wstring fromUtf8(std::string_view bytes);

/// UTF-8 of the wide text; a lone surrogate becomes U+FFFD.
std::string toUtf8(mp::wstring_view text);

void appendUtf8(std::string& bytes, char32_t character);

/// The character at the place, which moves behind it. A lone surrogate stands for itself.
char32_t nextCharacter(mp::wstring_view text, std::size_t& place);

constexpr bool isSurrogate(char32_t character)
{
    return character >= 0xD800 && character <= 0xDFFF;
}

} // namespace json
