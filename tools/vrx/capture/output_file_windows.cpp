#include "capture/output_file.h"

#include <windows.h>

#include <algorithm>
#include <system_error>

namespace capture
{

namespace
{

constexpr std::size_t kLargestWrite = std::size_t{1} << 30U;

HANDLE handleOf(std::intptr_t file)
{
    return reinterpret_cast<HANDLE>(file); // NOLINT: kept as a number, as on POSIX
}

[[noreturn]] void fail(const std::string& what)
{
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
}

} // namespace

OutputFile::OutputFile(const std::filesystem::path& path, bool overwrite)
    : m_file(reinterpret_cast<std::intptr_t>( // NOLINT
          CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                      overwrite ? CREATE_ALWAYS : CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr)))
{
    if (handleOf(m_file) == INVALID_HANDLE_VALUE)
    {
        fail("cannot create " + path.string());
    }
}

OutputFile::~OutputFile()
{
    CloseHandle(handleOf(m_file));
}

void OutputFile::write(const char* data, std::size_t size) const
{
    while (size > 0)
    {
        DWORD count = 0;
        if (WriteFile(handleOf(m_file), data, static_cast<DWORD>(std::min(size, kLargestWrite)), &count, nullptr) == 0)
        {
            fail("cannot write");
        }
        data += count;
        size -= count;
    }
}

void OutputFile::cutTo(std::uint64_t size) const
{
    LARGE_INTEGER place = {};
    place.QuadPart = static_cast<LONGLONG>(size);
    if (SetFilePointerEx(handleOf(m_file), place, nullptr, FILE_BEGIN) == 0 || SetEndOfFile(handleOf(m_file)) == 0)
    {
        fail("cannot cut the file");
    }
}

} // namespace capture
