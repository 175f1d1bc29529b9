#include "number_text.h"

#include "mp/narrow.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>
#include <string>

namespace
{

std::string fixedText(double value, int places)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::fixed << std::setprecision(places) << value;
    return stream.str();
}

mp::wstring withoutZeros(std::string text)
{
    if (text.find('.') != std::string::npos)
    {
        text.erase(text.find_last_not_of('0') + 1);
        text.erase(text.find_last_not_of('.') + 1);
    }
    return mp::toWide(text);
}

} // namespace

mp::wstring numberText(double value, double places)
{
    const int kFinest = 9;
    const std::string text =
        fixedText(value, places > 0 ? static_cast<int>(std::min<double>(places, kFinest)) : kFinest);
    const bool isNothing = text.find_first_not_of("-0.") == std::string::npos;
    const std::string shown = isNothing && text.front() == '-' ? text.substr(1) : text;
    return places > 0 ? mp::toWide(shown) : withoutZeros(shown);
}

mp::wstring roundedText(double value, int digits)
{
    if (value == 0 || !std::isfinite(value))
    {
        return numberText(value);
    }
    const int before = static_cast<int>(std::floor(std::log10(std::abs(value)))) + 1;
    if (before > digits)
    {
        const double unit = std::pow(10, before - digits);
        return withoutZeros(fixedText(std::round(value / unit) * unit, 0));
    }
    return withoutZeros(fixedText(value, digits - before));
}
