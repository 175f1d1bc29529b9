#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>

namespace capture
{

/// A new file that is written from its beginning to its end. What was written is with the system at once, so that it
/// outlives this process. A child process does not inherit it. All operations throw std::system_error.
class OutputFile
{
public:
    /// Refuses a file that exists, unless it may be overwritten.
    OutputFile(const std::filesystem::path& path, bool overwrite);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile();

    void write(const char* data, std::size_t size) const;

    /// Takes away what stands behind this many bytes.
    void cutTo(std::uint64_t size) const;

private:
    // A descriptor on POSIX, a handle on Windows.
    std::intptr_t m_file;
};

} // namespace capture
