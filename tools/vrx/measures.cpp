#include "measures.h"

#include "arguments.h"

#include <algorithm>
#include <cstdlib>

namespace tool
{

namespace
{

// The number at the front of a text, and what follows.
double numberAndUnit(const std::string& text, std::string& unit)
{
    const std::size_t end = std::min(text.find_first_not_of("0123456789."), text.size());
    const std::string digits = text.substr(0, end);
    char* behind = nullptr;
    const double number = std::strtod(digits.c_str(), &behind);
    if (digits.empty() || *behind != '\0')
    {
        throw UsageError("no number: " + text);
    }
    unit = text.substr(end);
    return number;
}

} // namespace

std::uint64_t sizeOf(const std::string& text)
{
    std::string unit;
    const double number = numberAndUnit(text, unit);
    const std::string units = "KMGT";
    const std::size_t place = unit.empty() ? 0 : units.find(unit) + 1;
    if (unit.size() > 1 || (!unit.empty() && place == 0))
    {
        throw UsageError("no size: " + text + "; 1000, 64K, 20M, 4G are some");
    }
    constexpr unsigned kBits = 10;
    constexpr double kMost = 1e19;
    const double bytes = number * static_cast<double>(std::uint64_t{1} << kBits * place);
    return static_cast<std::uint64_t>(bytes < kMost ? bytes : kMost);
}

std::chrono::seconds durationOf(const std::string& text)
{
    std::string unit;
    const double number = numberAndUnit(text, unit);
    const double seconds = unit == "s" ? 1 : unit == "m" ? 60 : unit == "h" ? 3600 : unit == "d" ? 86400 : 0;
    if (seconds == 0)
    {
        throw UsageError("no time: " + text + "; 90s, 15m, 1h, 2d are some");
    }
    constexpr double kMost = 1e12;
    const double time = number * seconds;
    return std::chrono::seconds(static_cast<std::chrono::seconds::rep>(time < kMost ? time : kMost));
}

std::string counted(std::uint64_t number)
{
    constexpr std::size_t kGroup = 3;
    std::string digits = std::to_string(number);
    for (std::size_t i = digits.size(); i > kGroup; i -= kGroup)
    {
        digits.insert(i - kGroup, 1, ',');
    }
    return digits;
}

std::string roughly(std::chrono::seconds time)
{
    using std::chrono::hours;
    using std::chrono::minutes;
    constexpr hours kDay(24);
    if (time < minutes(2))
    {
        return std::to_string(time.count()) + " s";
    }
    if (time < hours(2))
    {
        return std::to_string(time / minutes(1)) + " min";
    }
    return time < 2 * kDay ? std::to_string(time / hours(1)) + " h" : std::to_string(time / kDay) + " d";
}

} // namespace tool
