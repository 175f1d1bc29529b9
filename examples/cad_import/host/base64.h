#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

std::string base64(const std::vector<unsigned char>& bytes);

/// The bytes of an array of 32-bit numbers, least significant byte first whatever the machine.
template <class Number>
std::string base64Of(const std::vector<Number>& numbers)
{
    static_assert(sizeof(Number) == 4, "an array of 32-bit numbers");
    std::vector<unsigned char> bytes;
    bytes.reserve(numbers.size() * 4);
    for (const Number& number : numbers)
    {
        std::uint32_t bits = 0;
        std::memcpy(&bits, &number, sizeof(bits));
        for (unsigned shift = 0; shift < 32; shift += 8)
        {
            bytes.push_back(static_cast<unsigned char>(bits >> shift & 0xFF));
        }
    }
    return base64(bytes);
}
