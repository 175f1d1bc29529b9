#pragma once

#include <cctype>
#include <cstdint>
#include <string>
#include <string_view>

namespace test
{

/// The bytes of a hexadecimal text, in which blanks are passed over.
inline std::string bytes(std::string_view hex)
{
    std::string digits;
    std::string all;
    for (const char c : hex)
    {
        if (std::isxdigit(static_cast<unsigned char>(c)) == 0)
        {
            continue;
        }
        digits.push_back(c);
        if (digits.size() == 2)
        {
            all.push_back(static_cast<char>(std::stoi(digits, nullptr, 16)));
            digits.clear();
        }
    }
    return all;
}

/// A row's name as GoogleTest takes it: letters and digits, all else as "_".
inline std::string testName(std::string name)
{
    for (char& c : name)
    {
        if (std::isalnum(static_cast<unsigned char>(c)) == 0)
        {
            c = '_';
        }
    }
    return name;
}

/// The text of the error of this type that an operation throws, or "nothing".
template <class Error, class Operation>
std::string thrownBy(Operation operation)
{
    try
    {
        operation();
    }
    catch (const Error& error)
    {
        return error.what();
    }
    return "nothing";
}

} // namespace test
