#pragma once

#include "mp/narrow.h"

#include <cstdint>
#include <random>
#include <string>

namespace bench
{

/// The same numbers on every run and platform, which the distributions of the standard do not promise.
class Noise
{
public:
    /// From 0 up to 1.
    double next() { return static_cast<double>(m_engine()) / 4294967296.0; }

    std::uint32_t below(std::uint32_t limit) { return static_cast<std::uint32_t>(next() * limit); }

    mp::wstring guid()
    {
        constexpr mp::wchar kDigits[] = WIDE("0123456789abcdef");
        mp::wstring text = WIDE("xxxxxxxx-xxxx-4xxx-axxx-xxxxxxxxxxxx");
        for (mp::wchar& unit : text)
        {
            unit = unit == WIDE('x') ? kDigits[below(16)] : unit;
        }
        return text;
    }

private:
    std::mt19937 m_engine;
};

inline mp::wstring numbered(const char* name, std::size_t number)
{
    return mp::toWide(name + std::to_string(number));
}

} // namespace bench
