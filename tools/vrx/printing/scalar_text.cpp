#include "printing/scalar_text.h"

#include "json/member.h"
#include "measures.h"
#include "printing/escaped.h"

#include <array>
#include <charconv>
#include <cmath>

namespace printing
{

namespace
{

std::string doubleText(double number)
{
    if (!std::isfinite(number))
    {
        return std::isnan(number) ? "NaN" : number < 0 ? "-Infinity" : "Infinity";
    }
    constexpr std::size_t kLongest = 32;
    std::array<char, kLongest> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    std::string text(digits.data(), end);
    if (text.find_first_of(".e") == std::string::npos)
    {
        text += ".0";
    }
    return text;
}

} // namespace

std::string scalarText(const vrx::JsonValue& value)
{
    if (value.IsString())
    {
        return quoted(json::textOf(value));
    }
    if (value.IsBool())
    {
        return value.GetBool() ? "true" : "false";
    }
    if (value.IsDouble())
    {
        return doubleText(value.GetDouble());
    }
    if (value.IsInt64())
    {
        return std::to_string(value.GetInt64());
    }
    return value.IsUint64() ? std::to_string(value.GetUint64()) : "null";
}

std::string briefText(const vrx::JsonValue& value)
{
    constexpr std::size_t kLongest = 80;
    if (value.IsObject() || value.IsArray())
    {
        return value.IsObject() ? (value.ObjectEmpty() ? "{}" : "{...}") : (value.Empty() ? "[]" : "[...]");
    }
    if (!value.IsString() || value.GetStringLength() <= kLongest)
    {
        return scalarText(value);
    }
    const mp::wstring_view shown = beginningOf(json::textOf(value), kLongest);
    return quoted(shown) + "... " + tool::counted(value.GetStringLength() - shown.size()) + " more";
}

mp::wstring_view beginningOf(mp::wstring_view text, std::size_t most)
{
    if (text.size() <= most)
    {
        return text;
    }
    const bool endsInPair = most != 0 && text[most - 1] >= 0xD800 && text[most - 1] <= 0xDBFF;
    return text.substr(0, endsInPair ? most - 1 : most);
}

} // namespace printing
