#pragma once

#include "kernel_standin/kernel_standin_export.h"

#include <cstddef>
#include <cstdint>

/// A place in a file: bytes from its start.
using FilePosition = std::int64_t;

/// Where entities are saved to and restored from. Reading throws `acis_exception` when the data end too early.
class KERNEL_STANDIN FileInterface
{
public:
    FileInterface() = default;
    FileInterface(const FileInterface&) = delete;
    FileInterface& operator=(const FileInterface&) = delete;
    virtual ~FileInterface();

    /// The current position.
    virtual FilePosition set_mark() = 0;

    /// Moves to a position and returns it.
    virtual FilePosition goto_mark(FilePosition position) = 0;

    virtual void writeBytes(const void* data, std::size_t length) = 0;
    virtual void readBytes(void* buffer, std::size_t length) = 0;

    /// Unsigned numbers, of which the file holds this many bytes.
    virtual void writeNumber(std::uint64_t value, std::size_t size) = 0;
    virtual std::uint64_t readNumber(std::size_t size) = 0;
};

/// A file of binary data, numbers with their lowest byte first. A subclass gives the two marks and the two blocks.
class KERNEL_STANDIN BinaryFile : public FileInterface
{
public:
    BinaryFile();
    ~BinaryFile() override;

    void writeBytes(const void* data, std::size_t length) override;
    void readBytes(void* buffer, std::size_t length) override;
    void writeNumber(std::uint64_t value, std::size_t size) override;
    std::uint64_t readNumber(std::size_t size) override;

protected:
    /// Returns how many bytes were read: fewer than wanted at the end of the data.
    virtual std::size_t read(void* buffer, std::size_t length) = 0;
    virtual void write(const void* data, std::size_t length) = 0;
};
