#pragma once

#include <cstdint>

// What a build with a foreign drawing database includes in the plain number's place: a class that is made of a number
// and converted back to it on request only.
class OdDbHandle
{
public:
    explicit OdDbHandle(std::uint64_t number)
        : m_number(number)
    {
    }

    explicit operator std::uint64_t() const { return m_number; }

    friend bool operator<(const OdDbHandle& a, const OdDbHandle& b) { return a.m_number < b.m_number; }

private:
    std::uint64_t m_number;
};
