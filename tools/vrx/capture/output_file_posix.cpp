#include "capture/output_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace capture
{

namespace
{

[[noreturn]] void fail(const std::string& what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

} // namespace

OutputFile::OutputFile(const std::filesystem::path& path, bool overwrite)
    : m_file(::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | (overwrite ? O_TRUNC : O_EXCL), 0666))
{
    if (m_file < 0)
    {
        fail("cannot create " + path.string());
    }
}

OutputFile::~OutputFile()
{
    ::close(static_cast<int>(m_file));
}

void OutputFile::write(const char* data, std::size_t size) const
{
    while (size > 0)
    {
        const ssize_t count = ::write(static_cast<int>(m_file), data, size);
        if (count < 0 && errno != EINTR)
        {
            fail("cannot write");
        }
        const std::size_t written = count > 0 ? static_cast<std::size_t>(count) : 0;
        data += written;
        size -= written;
    }
}

void OutputFile::cutTo(std::uint64_t size) const
{
    if (::ftruncate(static_cast<int>(m_file), static_cast<off_t>(size)) != 0)
    {
        fail("cannot cut the file");
    }
}

} // namespace capture
