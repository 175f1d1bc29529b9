#include "bridge/frames.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vrx::bridge
{

namespace
{

constexpr std::uint32_t kMaxUnits = 1U << 26; // bulk data travels in shared memory: a longer text is no message
constexpr std::size_t kPiece = 1U << 20;

std::uint32_t byteAt(const char* bytes, std::size_t place)
{
    return static_cast<unsigned char>(bytes[place]);
}

// The number of bytes that were there before the end of the stream.
std::size_t readBytes(const Stream& stream, char* bytes, std::size_t size, const Wait& wait)
{
    std::size_t done = 0;
    while (done < size)
    {
        const std::size_t count = stream.readSome(bytes + done, size - done, wait);
        if (count == 0)
        {
            break;
        }
        done += count;
    }
    return done;
}

void requireWhole(std::size_t read, std::size_t wanted)
{
    if (read != wanted)
    {
        throw StreamError("the pipe ended within a message");
    }
}

} // namespace

std::optional<mp::wstring> readFrame(const Stream& stream, const Wait& wait)
{
    std::array<char, 4> head{};
    const std::size_t headSize = readBytes(stream, head.data(), head.size(), wait);
    if (headSize == 0)
    {
        return std::nullopt;
    }
    requireWhole(headSize, head.size());

    std::uint32_t units = 0;
    for (std::size_t i = 0; i < head.size(); ++i)
    {
        units |= byteAt(head.data(), i) << (8 * i);
    }
    if (units > kMaxUnits)
    {
        throw StreamError("what stands on the pipe is no message");
    }

    // By pieces, so that memory grows with what really arrives.
    mp::wstring text;
    std::vector<char> bytes;
    for (std::size_t left = std::size_t{units} * 2; left > 0; left -= bytes.size())
    {
        bytes.resize(std::min(left, kPiece));
        requireWhole(readBytes(stream, bytes.data(), bytes.size(), wait), bytes.size());
        for (std::size_t i = 0; i < bytes.size(); i += 2)
        {
            text.push_back(static_cast<mp::wchar>(byteAt(bytes.data(), i) | byteAt(bytes.data(), i + 1) << 8));
        }
    }
    return text;
}

void writeFrame(const Stream& stream, const mp::wstring& message, const Wait& wait)
{
    if (message.size() > kMaxUnits)
    {
        throw StreamError("a message is too long for the pipe");
    }
    std::vector<char> bytes;
    bytes.reserve(4 + message.size() * 2);
    for (unsigned i = 0; i < 4; ++i)
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
    mp::wstringstream stream;
    message.writeObject(stream);
    return stream.str();
}

void fromText(const mp::wstring& text, mp::ISerializable& message)
{
    mp::wstringstream stream(text);
    message.readObject(stream);
}

} // namespace vrx::bridge
