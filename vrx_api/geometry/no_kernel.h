#pragma once

#include <cstddef>
#include <cstdint>

// What stands in the place of the kernel's header where the library is built without a kernel: the file that bodies are
// saved into, which nothing writes or reads then. The name is in `vrx`, so that it is not the kernel's.
namespace vrx
{

using FilePosition = std::int64_t;

class BinaryFile
{
public:
    BinaryFile() = default;
    BinaryFile(const BinaryFile&) = delete;
    BinaryFile& operator=(const BinaryFile&) = delete;
    virtual ~BinaryFile() = default;

    virtual FilePosition set_mark() = 0;
    virtual FilePosition goto_mark(FilePosition position) = 0;

protected:
    virtual std::size_t read(void* buffer, std::size_t length) = 0;
    virtual void write(const void* data, std::size_t length) = 0;
};

} // namespace vrx
