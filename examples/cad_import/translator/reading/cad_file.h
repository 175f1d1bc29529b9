#pragma once

#include <cstdint>
#include <fstream>
#include <string>

/// A file to read, open. Its first and last bytes tell its format and whether it is whole.
class CadFile
{
public:
    /// Throws TranslationError with a message for the user when there is nothing to read.
    explicit CadFile(const std::string& path);

    const std::string& path() const { return m_path; }
    std::uint64_t size() const { return m_size; }
    const std::string& begin() const { return m_begin; }
    const std::string& end() const { return m_end; }

    /// Stands at the file's begin.
    std::istream& stream() { return m_stream; }

private:
    std::string piece(std::uint64_t begin, std::uint64_t size);

    std::string m_path;
    std::ifstream m_stream;
    std::uint64_t m_size = 0;
    std::string m_begin;
    std::string m_end;
};
