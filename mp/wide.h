#pragma once

#include <istream>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

namespace mp
{

/// The unit of all model text: 16 bits wide, holding UTF-16, on every platform.
#ifdef _WIN32
using wchar = wchar_t;
#define WIDE(text) L##text
#else
using wchar = char16_t;
#define WIDE(text) u##text
#endif

static_assert(sizeof(wchar) == 2, "a wide unit has 16 bits");

/// Text, and streams of text, in these units.
using wstring = std::basic_string<wchar>;
using wstring_view = std::basic_string_view<wchar>;
using wistream = std::basic_istream<wchar>;
using wostream = std::basic_ostream<wchar>;
using wstringstream = std::basic_stringstream<wchar>;
using wistringstream = std::basic_istringstream<wchar>;
using wostringstream = std::basic_ostringstream<wchar>;

} // namespace mp
