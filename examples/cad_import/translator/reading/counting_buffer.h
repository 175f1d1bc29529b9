#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <istream>
#include <streambuf>
#include <utility>

/// Passes a source on and tells how many bytes have been taken from it.
class CountingBuffer : public std::streambuf
{
public:
    CountingBuffer(std::istream& source, std::function<void(std::uint64_t)> report)
        : m_source(source)
        , m_report(std::move(report))
    {
    }

protected:
    int_type underflow() override
    {
        m_source.read(m_piece.data(), static_cast<std::streamsize>(m_piece.size()));
        const std::streamsize count = m_source.gcount();
        if (count <= 0)
        {
            return traits_type::eof();
        }
        m_count += static_cast<std::uint64_t>(count);
        m_report(m_count);
        setg(m_piece.data(), m_piece.data(), m_piece.data() + count);
        return traits_type::to_int_type(*gptr());
    }

private:
    std::istream& m_source;
    std::function<void(std::uint64_t)> m_report;
    std::uint64_t m_count = 0;
    std::array<char, 65536> m_piece{};
};
