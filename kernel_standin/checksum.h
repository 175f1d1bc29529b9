#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The CRC-32 of IEEE 802.3 over bytes that come in pieces.
class Checksum
{
public:
    void add(const void* data, std::size_t length)
    {
        const auto* const bytes = static_cast<const unsigned char*>(data);
        for (std::size_t i = 0; i < length; ++i)
        {
            m_state = m_state >> 8U ^ kTable[(m_state ^ bytes[i]) & 0xFFU];
        }
    }

    /// Adds a number as a binary file holds it.
    void addNumber(std::uint64_t number, std::size_t size)
    {
        for (std::size_t i = 0; i < size; ++i)
        {
            const auto byte = static_cast<unsigned char>(number >> 8 * i);
            add(&byte, 1);
        }
    }

    std::uint32_t value() const { return ~m_state; }

private:
    static constexpr std::array<std::uint32_t, 256> makeTable()
    {
        std::array<std::uint32_t, 256> table{};
        for (std::uint32_t i = 0; i < 256; ++i)
        {
            std::uint32_t entry = i;
            for (int bit = 0; bit < 8; ++bit)
            {
                entry = entry >> 1U ^ ((entry & 1U) != 0 ? 0xEDB88320U : 0U);
            }
            table[i] = entry;
        }
        return table;
    }

    static const std::array<std::uint32_t, 256> kTable;

    std::uint32_t m_state = 0xFFFFFFFFU;
};

inline constexpr std::array<std::uint32_t, 256> Checksum::kTable = Checksum::makeTable();
