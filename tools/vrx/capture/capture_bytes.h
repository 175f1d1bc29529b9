#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

/// What a capture file is made of, below its frames.
namespace capture
{

/// No text begins with these: the first is no character in UTF-8, and what a transfer as text would change follows.
inline constexpr std::array<char, 8> kMagic = {'\x89', 'V', 'R', 'X', '\r', '\n', '\x1A', '\n'};

/// A reader refuses a higher major version. A higher minor version brings kinds of frames that older readers pass over.
inline constexpr std::uint16_t kMajorVersion = 1;
inline constexpr std::uint16_t kMinorVersion = 1;

/// The magic, two versions and the checksum of these.
inline constexpr std::size_t kHeaderSize = 16;

/// A frame's kind, time and size.
inline constexpr std::size_t kFrameHeadSize = 20;

/// Appends the number, least significant byte first.
template <class Number>
void appendNumber(std::string& bytes, Number number)
{
    static_assert(std::is_unsigned_v<Number>);
    for (std::size_t i = 0; i < sizeof(Number); ++i)
    {
        bytes.push_back(static_cast<char>(std::uint64_t{number} >> 8 * i & 0xFFU));
    }
}

/// The number in the bytes from here on, least significant byte first.
template <class Number>
Number numberAt(const char* bytes)
{
    static_assert(std::is_unsigned_v<Number>);
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i)
    {
        number |= std::uint64_t{static_cast<unsigned char>(bytes[i])} << 8 * i;
    }
    return static_cast<Number>(number);
}

/// Goes on with a checksum, which begins with 0.
std::uint32_t checksum(std::uint32_t before, const char* data, std::size_t size);

} // namespace capture
