#pragma once

#include "kernel_standin/kernel_standin.h"

#include <string>
#include <vector>

namespace test
{

/// Entities that are destroyed with this object, with what tests make and say of them.
class Bodies : public OwnedEntities
{
public:
    /// Adds a brick of 6 faces, 12 edges and 8 vertices, each edge in two loops, with these bytes hung on it.
    BODY* addBrick(const std::string& payload);

    /// A line for each: the payload, and the numbers of faces, edges and vertices.
    std::string describe() const;
};

/// A file of the kernel in memory.
class MemoryFile : public BinaryFile
{
public:
    explicit MemoryFile(std::string bytes = {});

    const std::string& bytes() const { return m_bytes; }

    FilePosition set_mark() override;
    FilePosition goto_mark(FilePosition position) override;

protected:
    std::size_t read(void* buffer, std::size_t length) override;
    void write(const void* data, std::size_t length) override;

private:
    std::string m_bytes;
    std::size_t m_position = 0;
};

/// What the kernel saves for a list.
std::string saved(const ENTITY_LIST& list);

/// The whole saved form around these records, with the right size and checksum.
std::string framed(const std::string& records);

/// The text of the error that restoring these bytes gives; empty when it goes well.
std::string restoreError(const std::string& bytes, ENTITY_LIST& list);

} // namespace test
