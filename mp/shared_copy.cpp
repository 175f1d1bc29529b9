#include "mp/shared_copy.h"

#include <boost/interprocess/mapped_region.hpp>
#include <boost/interprocess/shared_memory_object.hpp>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#endif

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace mp
{

namespace
{

namespace ipc = boost::interprocess;

#ifdef _WIN32
constexpr ipc::native_error_t kNoMemory = ERROR_NOT_ENOUGH_MEMORY;
#else
constexpr ipc::native_error_t kNoMemory = ENOMEM;
#endif

// Where there is no room for them, the buffer could not be mapped either: it is that error. Zeros take no memory before
// they are written.
char* allocate(std::uint64_t size, bool zeros)
{
    const auto count = static_cast<std::size_t>(size);
    void* const bytes = zeros ? std::calloc(count, 1) : std::malloc(count); // NOLINT(cppcoreguidelines-no-malloc)
    if (bytes == nullptr)
    {
        throw ipc::interprocess_exception(ipc::error_info(kNoMemory));
    }
    return static_cast<char*>(bytes);
}

#ifdef _WIN32
bool hasHoles(const ipc::shared_memory_object&, std::uint64_t)
{
    return false;
}

// Nobody can make an object shorter while it is mapped.
void copyAll(const ipc::shared_memory_object& object, char* out, std::uint64_t size)
{
    const ipc::mapped_region region(object, ipc::read_only, 0, static_cast<std::size_t>(size));
    std::memcpy(out, region.get_address(), region.get_size());
}

void copyBetweenHoles(const ipc::shared_memory_object& object, char* out, std::uint64_t size)
{
    copyAll(object, out, size);
}
#else
// In a mapping the first look at a page that the object lacks makes it, and kills the process if the file system is
// full, or if another program has made the object shorter. So the objects are read as files.

// Reads up to `end`, or less if the object ends before; the place where it stopped.
off_t readData(int file, char* out, off_t begin, off_t end)
{
    while (begin < end)
    {
        const ssize_t count = pread(file, out + begin, static_cast<std::size_t>(end - begin), begin);
        if (count == 0)
        {
            return begin;
        }
        if (count > 0)
        {
            begin += count;
        }
        else if (errno != EINTR)
        {
            throw ipc::interprocess_exception(ipc::error_info(errno));
        }
    }
    return end;
}

// Where the next data or hole begins; at the end when there is none, or when the object was made shorter.
off_t next(int kind, int file, off_t begin, off_t end)
{
    const off_t found = lseek(file, begin, kind);
    if (found < 0 && errno != ENXIO)
    {
        throw ipc::interprocess_exception(ipc::error_info(errno));
    }
    return found < 0 ? end : std::min(found, end);
}

int fileOf(const ipc::shared_memory_object& object)
{
    return object.get_mapping_handle().handle;
}

bool hasHoles(const ipc::shared_memory_object& object, std::uint64_t size)
{
    // An object that is shorter by now counts as one with holes, and takes no memory for what it lacks.
    return lseek(fileOf(object), 0, SEEK_HOLE) < static_cast<off_t>(size);
}

// Asks for large pages, with which a large copy takes half the time. Between holes one would take many times the memory
// of its data.
void wantLargePages(char* bytes, std::size_t size)
{
#ifdef MADV_HUGEPAGE
    constexpr std::size_t kPage = std::size_t{2} << 20U;
    void* begin = bytes;
    if (std::align(kPage, kPage, begin, size) != nullptr)
    {
        madvise(begin, size / kPage * kPage, MADV_HUGEPAGE);
    }
#else
    static_cast<void>(bytes);
    static_cast<void>(size);
#endif
}

void copyAll(const ipc::shared_memory_object& object, char* out, std::uint64_t size)
{
    wantLargePages(out, static_cast<std::size_t>(size));
    const auto end = static_cast<off_t>(size);
    const off_t behind = readData(fileOf(object), out, 0, end);
    std::memset(out + behind, 0, static_cast<std::size_t>(end - behind));
}

void copyBetweenHoles(const ipc::shared_memory_object& object, char* out, std::uint64_t size)
{
    const int file = fileOf(object);
    const auto end = static_cast<off_t>(size);
    for (off_t data = next(SEEK_DATA, file, 0, end); data < end;)
    {
        const off_t hole = next(SEEK_HOLE, file, data, end);
        readData(file, out, data, hole);
        data = next(SEEK_DATA, file, hole, end);
    }
}
#endif

} // namespace

SharedCopy::SharedCopy(const ipc::shared_memory_object& object, std::uint64_t size)
    : m_size(size)
{
    const bool zeros = hasHoles(object, size);
    m_bytes.reset(allocate(size, zeros));
    zeros ? copyBetweenHoles(object, m_bytes.get(), size) : copyAll(object, m_bytes.get(), size);
}

void SharedCopy::Release::operator()(char* bytes) const noexcept
{
    std::free(bytes); // NOLINT(cppcoreguidelines-no-malloc): it comes from malloc
}

} // namespace mp
