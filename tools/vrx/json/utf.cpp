#include "json/utf.h"

#include "arguments.h"

#include <array>

namespace json
{

namespace
{

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstPair = 0x10000;
constexpr char32_t kLastCharacter = 0x10FFFF;
constexpr char32_t kHigh = 0xD800;
constexpr char32_t kLow = 0xDC00;
constexpr unsigned kContinued = 6; // Bits in a byte that continues a character.
constexpr char32_t kContinuedMask = 0x3F;

[[noreturn]] void refuse(std::size_t place)
{
    throw tool::InputError("malformed UTF-8 at byte " + std::to_string(place));
}

// How many bytes continue the character that this byte begins; the bounds are those of RFC 3629, section 4.
std::size_t continuedBy(unsigned char first, std::size_t place)
{
    if (first < 0x80)
    {
        return 0;
    }
    if (first < 0xC2 || first > 0xF4)
    {
        refuse(place);
    }
    return first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
}

char32_t takeUtf8(std::string_view bytes, std::size_t& place)
{
    constexpr std::array<char32_t, 4> kSmallest = {0, 0x80, 0x800, kFirstPair};
    const std::size_t begin = place;
    const auto first = static_cast<unsigned char>(bytes[place++]);
    const std::size_t count = continuedBy(first, begin);
    char32_t character = count == 0 ? first : first & (kContinuedMask >> count);
    for (std::size_t i = 0; i < count; ++i, ++place)
    {
        const auto byte = place < bytes.size() ? static_cast<unsigned char>(bytes[place]) : 0U;
        if ((byte & 0xC0U) != 0x80)
        {
            refuse(begin);
        }
        character = character << kContinued | (byte & kContinuedMask);
    }
    if (character < kSmallest.at(count) || character > kLastCharacter || isSurrogate(character))
    {
        refuse(begin);
    }
    return character;
}

} // namespace

mp::wstring fromUtf8(std::string_view bytes)
{
    mp::wstring text;
    text.reserve(bytes.size());
    for (std::size_t place = 0; place < bytes.size();)
    {
        const char32_t character = takeUtf8(bytes, place);
        if (character < kFirstPair)
        {
            text.push_back(static_cast<mp::wchar>(character));
        }
        else
        {
            text.push_back(static_cast<mp::wchar>(kHigh + ((character - kFirstPair) >> 10U)));
            text.push_back(static_cast<mp::wchar>(kLow + ((character - kFirstPair) & 0x3FFU)));
        }
    }
    return text;
}

void appendUtf8(std::string& bytes, char32_t character)
{
    const auto append = [&bytes](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
    const auto continued = [&](unsigned shift) { append(0x80 | (character >> shift & kContinuedMask)); };
    if (character < 0x80)
    {
        append(character);
    }
    else if (character < 0x800)
    {
        append(0xC0 | character >> kContinued);
        continued(0);
    }
    else if (character < kFirstPair)
    {
        append(0xE0 | character >> 2 * kContinued);
        continued(kContinued);
        continued(0);
    }
    else
    {
        append(0xF0 | character >> 3 * kContinued);
        continued(2 * kContinued);
        continued(kContinued);
        continued(0);
    }
}

char32_t nextCharacter(mp::wstring_view text, std::size_t& place)
{
    const char32_t unit = text[place++];
    if (unit >= kHigh && unit < kLow && place < text.size() && text[place] >= kLow && isSurrogate(text[place]))
    {
        return kFirstPair + ((unit - kHigh) << 10U) + (text[place++] - kLow);
    }
    return unit;
}

std::string toUtf8(mp::wstring_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t place = 0; place < text.size();)
    {
        const char32_t character = nextCharacter(text, place);
        appendUtf8(bytes, isSurrogate(character) ? kReplacement : character);
    }
    return bytes;
}

} // namespace json
