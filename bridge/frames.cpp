#include "bridge/frames.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <streambuf>
#include <utility>

namespace vrx::bridge
{

namespace
{

constexpr std::uint32_t kMaxUnits = 1U << 26; // bulk data travels in shared memory: a longer text is no message
constexpr std::size_t kHeadSize = 4;

std::uint32_t byteAt(const std::string& bytes, std::size_t place)
{
    return static_cast<unsigned char>(bytes[place]);
}

// What is written to it can be taken without a copy. A message that has made shared memory must not be lost because
// there is no memory for one.
class TextBuffer : public std::basic_streambuf<mp::wchar>
{
public:
    mp::wstring take() { return std::move(m_text); }

protected:
    int_type overflow(int_type unit) override
    {
        m_text.push_back(traits_type::to_char_type(unit));
        return traits_type::not_eof(unit);
    }

    std::streamsize xsputn(const mp::wchar* units, std::streamsize count) override
    {
        m_text.append(units, static_cast<std::size_t>(count));
        return count;
    }

private:
    mp::wstring m_text;
};

} // namespace

// False at the end of the stream. Memory grows with what really arrives.
bool FrameReader::fill(std::size_t size, const Wait& wait)
{
    std::array<char, 16384> piece{};
    while (m_bytes.size() < size)
    {
        const std::size_t count = m_stream.readSome(piece.data(), std::min(size - m_bytes.size(), piece.size()), wait);
        if (count == 0)
        {
            return false;
        }
        m_bytes.append(piece.data(), count);
    }
    return true;
}

std::optional<mp::wstring> FrameReader::read(const Wait& wait)
{
    bool isWhole = fill(kHeadSize, wait);
    if (m_bytes.empty())
    {
        return std::nullopt;
    }
    std::uint32_t units = 0;
    if (isWhole)
    {
        for (std::size_t i = 0; i < kHeadSize; ++i)
        {
            units |= byteAt(m_bytes, i) << (8 * i);
        }
        if (units > kMaxUnits)
        {
            throw NoMessage("what stands on the pipe is no message");
        }
        isWhole = fill(kHeadSize + std::size_t{units} * 2, wait);
    }
    if (!isWhole)
    {
        throw StreamError("the pipe ended within a message");
    }
    mp::wstring text(units, mp::wchar());
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const std::size_t place = kHeadSize + i * 2;
        text[i] = static_cast<mp::wchar>(byteAt(m_bytes, place) | byteAt(m_bytes, place + 1) << 8);
    }
    m_bytes.clear();
    return text;
}

std::optional<mp::wstring> readFrame(const Stream& stream, const Wait& wait)
{
    return FrameReader(stream).read(wait);
}

void writeFrame(const Stream& stream, const mp::wstring& message, const Wait& wait)
{
    if (message.size() > kMaxUnits)
    {
        throw std::length_error("A message of " + std::to_string(message.size()) + " units is too long for the pipe");
    }
    std::string bytes;
    bytes.reserve(kHeadSize + message.size() * 2);
    for (unsigned i = 0; i < kHeadSize; ++i)
    {
        bytes.push_back(static_cast<char>(message.size() >> (8 * i) & 0xFF));
    }
    for (const mp::wchar unit : message)
    {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    }
    stream.writeAll(bytes.data(), bytes.size(), wait);
}

mp::wstring toText(const mp::ISerializable& message)
{
    TextBuffer buffer;
    mp::wostream stream(&buffer);
    message.writeObject(stream);
    return buffer.take();
}

void fromText(const mp::wstring& text, mp::ISerializable& message)
{
    mp::wstringstream stream(text);
    message.readObject(stream);
}

} // namespace vrx::bridge
