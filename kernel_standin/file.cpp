#include "kernel_standin/file.h"

#include "kernel_standin/call.h"

#include <array>
#include <cassert>

FileInterface::~FileInterface() = default;

BinaryFile::BinaryFile() = default;
BinaryFile::~BinaryFile() = default;

void BinaryFile::writeBytes(const void* data, std::size_t length)
{
    write(data, length);
}

void BinaryFile::readBytes(void* buffer, std::size_t length)
{
    auto* const bytes = static_cast<char*>(buffer);
    std::size_t done = 0;
    while (done < length)
    {
        const std::size_t count = read(bytes + done, length - done);
        if (count == 0)
        {
            raiseError(KernelError::BadData, "The saved data end too early");
        }
        done += count;
    }
}

void BinaryFile::writeNumber(std::uint64_t value, std::size_t size)
{
    std::array<unsigned char, sizeof value> bytes{};
    assert(size <= bytes.size());
    for (std::size_t i = 0; i < size; ++i)
    {
        bytes[i] = static_cast<unsigned char>(value >> 8 * i);
    }
    writeBytes(bytes.data(), size);
}

std::uint64_t BinaryFile::readNumber(std::size_t size)
{
    std::array<unsigned char, sizeof(std::uint64_t)> bytes{};
    assert(size <= bytes.size());
    readBytes(bytes.data(), size);
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < size; ++i)
    {
        value |= std::uint64_t{bytes[i]} << 8 * i;
    }
    return value;
}
