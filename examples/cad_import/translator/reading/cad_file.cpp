#include "reading/cad_file.h"

#include "translation_error.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>

namespace
{

const std::uint64_t kPiece = 4096; // this many bytes of each end are looked at

} // namespace

CadFile::CadFile(const std::string& path)
    : m_path(path)
{
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::status(path, failure);
    if (!std::filesystem::exists(status))
    {
        throw TranslationError("There is no file " + path + ".");
    }
    if (!std::filesystem::is_regular_file(status))
    {
        throw TranslationError(path + " is not a file.");
    }
    m_stream.open(path, std::ios::binary);
    if (!m_stream)
    {
        throw TranslationError("Cannot open " + path + ": " + std::strerror(errno) + ".");
    }
    m_size = std::filesystem::file_size(path);
    if (m_size == 0)
    {
        throw TranslationError(path + " is empty.");
    }
    const std::uint64_t size = std::min(m_size, kPiece);
    m_begin = piece(0, size);
    m_end = piece(m_size - size, size);
    m_stream.seekg(0);
}

std::string CadFile::piece(std::uint64_t begin, std::uint64_t size)
{
    std::string text(static_cast<std::size_t>(size), '\0');
    m_stream.seekg(static_cast<std::streamoff>(begin));
    m_stream.read(text.data(), static_cast<std::streamsize>(size));
    text.resize(static_cast<std::size_t>(std::max<std::streamsize>(m_stream.gcount(), 0)));
    m_stream.clear();
    return text;
}
