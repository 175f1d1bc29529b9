#pragma once

#include "mp/wide.h"

#include <cstring>
#include <string>
#include <string_view>

namespace test
{

/// How wide text goes over a pipe between test processes: its units as the machine holds them.
inline std::string bytesOf(const mp::wstring& text)
{
    std::string bytes(text.size() * sizeof(mp::wchar), '\0');
    std::memcpy(bytes.data(), text.data(), bytes.size());
    return bytes;
}

inline mp::wstring unitsOf(std::string_view bytes)
{
    mp::wstring text(bytes.size() / sizeof(mp::wchar), mp::wchar());
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(mp::wchar));
    return text;
}

} // namespace test
