#include "bridge/journal_files.h"
#include "bridge/system_error_text.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>

namespace vrx::bridge
{

namespace
{

[[noreturn]] void fail(const char* what)
{
    throw std::runtime_error(systemErrorText(what, errno));
}

} // namespace

// The flag that appends is the file's, not the descriptor's, so that one descriptor does for both. Neither takes the
// place of a standard stream that is missing.
OwnedHandle makeJournalFile(OwnedHandle& inherited)
{
    const OwnedHandle made(::memfd_create("vrx buffer journal", MFD_CLOEXEC));
    const int file = static_cast<int>(made.get());
    OwnedHandle first(::fcntl(file, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    inherited = OwnedHandle(::fcntl(file, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    if (!first.isOpen() || !inherited.isOpen() || ::fcntl(file, F_SETFL, O_APPEND) != 0)
    {
        fail("cannot make a journal of shared memory");
    }
    return first;
}

std::size_t readAt(const OwnedHandle& file, std::size_t offset, char* bytes, std::size_t size)
{
    ssize_t count = 0;
    do
    {
        count = ::pread(static_cast<int>(file.get()), bytes, size, static_cast<off_t>(offset));
    } while (count < 0 && errno == EINTR);
    if (count < 0)
    {
        fail("cannot read the journal of shared memory");
    }
    return static_cast<std::size_t>(count);
}

void append(NativeHandle file, std::string_view bytes)
{
    ssize_t count = 0;
    do
    {
        count = ::write(static_cast<int>(file), bytes.data(), bytes.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0)
    {
        fail("cannot write the journal of shared memory");
    }
}

std::string identityOf(NativeHandle file)
{
    struct stat status = {};
    if (::fstat(static_cast<int>(file), &status) != 0)
    {
        return {};
    }
    return std::to_string(status.st_dev) + ':' + std::to_string(status.st_ino);
}

} // namespace vrx::bridge
