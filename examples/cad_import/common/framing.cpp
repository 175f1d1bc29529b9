#include "common/framing.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

namespace framing
{

namespace
{

const std::uint32_t kMaxUnits = 1U << 26; // bulk data travels in shared memory: a longer text is no message
const std::size_t kPiece = 1U << 20;

[[noreturn]] void fail(const char* what)
{
    throw std::runtime_error(std::string(what) + ": " + std::strerror(errno));
}

// The number of bytes that were there before the end of the pipe.
std::size_t readBytes(int descriptor, unsigned char* bytes, std::size_t size)
{
    std::size_t done = 0;
    while (done < size)
    {
        const ssize_t count = ::read(descriptor, bytes + done, size - done);
        if (count == 0)
        {
            break;
        }
        if (count < 0 && errno != EINTR)
        {
            fail("cannot read from the pipe");
        }
        done += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return done;
}

void readWhole(int descriptor, unsigned char* bytes, std::size_t size)
{
    if (readBytes(descriptor, bytes, size) != size)
    {
        throw std::runtime_error("the pipe ended within a message");
    }
}

void writeBytes(int descriptor, const unsigned char* bytes, std::size_t size)
{
    std::size_t done = 0;
    while (done < size)
    {
        const ssize_t count = ::write(descriptor, bytes + done, size - done);
        if (count < 0 && errno != EINTR)
        {
            fail("cannot write to the pipe");
        }
        done += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
}

} // namespace

std::optional<mp::wstring> read(int descriptor)
{
    std::array<unsigned char, 4> head{};
    const std::size_t headSize = readBytes(descriptor, head.data(), head.size());
    if (headSize == 0)
    {
        return std::nullopt;
    }
    readWhole(descriptor, head.data() + headSize, head.size() - headSize);

    std::uint32_t units = 0;
    for (std::size_t i = 0; i < head.size(); ++i)
    {
        units |= static_cast<std::uint32_t>(head[i]) << (8 * i);
    }
    if (units > kMaxUnits)
    {
        throw std::runtime_error("what stands on the pipe is no message");
    }

    // By pieces, so that memory grows with what really arrives.
    mp::wstring text;
    std::vector<unsigned char> bytes;
    std::size_t left = std::size_t{units} * 2;
    while (left > 0)
    {
        bytes.resize(std::min(left, kPiece));
        readWhole(descriptor, bytes.data(), bytes.size());
        for (std::size_t i = 0; i < bytes.size(); i += 2)
        {
            text.push_back(static_cast<mp::wchar>(bytes[i] | bytes[i + 1] << 8));
        }
        left -= bytes.size();
    }
    return text;
}

void write(int descriptor, const mp::wstring& message)
{
    if (message.size() > kMaxUnits)
    {
        throw std::runtime_error("a message is too long for the pipe");
    }
    std::vector<unsigned char> bytes;
    bytes.reserve(4 + message.size() * 2);
    for (unsigned i = 0; i < 4; ++i)
    {
        bytes.push_back(static_cast<unsigned char>(message.size() >> (8 * i) & 0xFF));
    }
    for (const mp::wchar unit : message)
    {
        bytes.push_back(static_cast<unsigned char>(unit & 0xFF));
        bytes.push_back(static_cast<unsigned char>(unit >> 8));
    }
    writeBytes(descriptor, bytes.data(), bytes.size());
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

} // namespace framing
