#pragma once

namespace printing
{

/// The escape sequences that colour a terminal's text; all empty where there is no colour.
struct Palette
{
    const char* heading = "";
    const char* key = "";
    const char* string = "";
    const char* number = "";
    const char* literal = "";
    const char* note = "";
    const char* warning = "";
    const char* end = "";
};

constexpr Palette kPlain = {};
constexpr Palette kColored = {"\x1B[1m",  "\x1B[36m", "\x1B[32m", "\x1B[33m",
                              "\x1B[35m", "\x1B[2m",  "\x1B[31m", "\x1B[0m"};

} // namespace printing
