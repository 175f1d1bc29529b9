#include "mp/shared_buffer.h"

#include "mp/narrow.h"

#include <boost/interprocess/mapped_region.hpp>
#include <boost/interprocess/shared_memory_object.hpp>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#endif

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>
#include <utility>

namespace mp
{

namespace
{

namespace ipc = boost::interprocess;

// CAD data is not for every user of the machine.
ipc::permissions ownerOnly()
{
#ifdef _WIN32
    return {};
#else
    return ipc::permissions(0600);
#endif
}

// Sizing a POSIX object reserves no memory, and the first write to a page that the file system can't supply kills the
// process. Reserved ahead, a full file system is an error like any other.
void reserveMemory(ipc::shared_memory_object& object, ipc::offset_t size)
{
#ifdef _WIN32
    static_cast<void>(object);
    static_cast<void>(size);
#else
    constexpr ipc::offset_t kSmall = ipc::offset_t{16} << 20U;
    ipc::offset_t piece = size;
    ipc::offset_t begin = 0;
    while (begin < size)
    {
        const int error = posix_fallocate(object.get_mapping_handle().handle, begin, std::min(piece, size - begin));
        if (error == 0)
        {
            begin += piece;
        }
        else if (error == EINTR)
        {
            // It undoes what it has done. All at once would never end under a timer that is quicker.
            piece = std::min(piece, kSmall);
        }
        else
        {
            // Nobody must find a size that no memory stands behind.
            object.truncate(0);
            throw ipc::interprocess_exception(ipc::error_info(error));
        }
    }
#endif
}

// Has the system map all pages at once, which is cheaper than one by one as they are written. Where it can't, they
// come one by one.
void mapAllPages(const ipc::mapped_region& region)
{
#ifdef MADV_POPULATE_WRITE
    madvise(region.get_address(), region.get_size(), MADV_POPULATE_WRITE);
#else
    static_cast<void>(region);
#endif
}

// On Windows an object is a file of its name in a folder of the layer below. A name from the other program must not
// lead out of that folder; elsewhere the system refuses such a name itself.
#ifdef _WIN32
bool isPath(std::string_view name)
{
    return name.find_first_of("/\\:") != std::string_view::npos;
}

// With a separator at its end; known from the first object on, when there may be no memory for it.
const std::string& objectFolder()
{
    static const std::string folder = [] {
        std::string path;
        ipc::ipcdetail::get_shared_dir(path);
        return path + '/';
    }();
    return folder;
}

// The layer below first gives an object that is open another name, for which it needs memory.
bool removeFile(std::string_view name)
{
    const std::string_view folder = objectFolder();
    std::array<char, MAX_PATH> path = {};
    if (folder.size() + name.size() >= path.size())
    {
        return false;
    }
    char* const nameInPath = path.data() + folder.copy(path.data(), folder.size());
    name.copy(nameInPath, name.size());
    return ipc::shared_memory_object::remove(nameInPath) || DeleteFileA(path.data()) != 0;
}
#endif

void refusePath(const std::string& name)
{
#ifdef _WIN32
    if (isPath(name))
    {
        throw ipc::interprocess_exception(ipc::error_info(ERROR_INVALID_NAME));
    }
#else
    static_cast<void>(name);
#endif
}

// There may be no memory for a text.
[[noreturn]] void fail(const ipc::interprocess_exception& error)
{
    if (*error.what() == '\0')
    {
        throw std::bad_alloc();
    }
    throw SharedMemoryException(toWide(error.what()));
}

// Runs an operation of the layer below and turns its exceptions into ours.
template <class Operation>
void withTurnedErrors(Operation operation)
{
    try
    {
        operation();
    }
    catch (const ipc::interprocess_exception& error)
    {
        fail(error);
    }
}

std::string usableName(const wstring& name)
{
    if (name.empty())
    {
        throw SharedMemoryException(WIDE("Shared variable name mustn't be empty"));
    }
    std::string narrowName = toNarrow(name);
    withTurnedErrors([&] { refusePath(narrowName); });
    return narrowName;
}

std::atomic<SharedBufferWatcher> sharedBufferWatcher = nullptr;

} // namespace

void setSharedBufferWatcher(SharedBufferWatcher watcher)
{
    sharedBufferWatcher = watcher;
}

SharedBuffer<char>::SharedBuffer() = default;

SharedBuffer<char>::~SharedBuffer()
{
    if (m_object == nullptr)
    {
        return;
    }
    m_object.reset();
    if (m_removeOnClose)
    {
        removeNarrow(m_narrowName);
    }
}

void SharedBuffer<char>::open(const wstring& name, bool removeOnClose)
{
    std::string narrowName = usableName(name);
    wstring wideName = name;
    if (const SharedBufferWatcher watcher = sharedBufferWatcher)
    {
        watcher(name);
    }
    withTurnedErrors([&] {
#ifdef _WIN32
        objectFolder();
#endif
        m_object = std::make_unique<ipc::shared_memory_object>(ipc::open_or_create, narrowName.c_str(), ipc::read_write,
                                                               ownerOnly());
    });
    m_removeOnClose = removeOnClose;
    m_name = std::move(wideName);
    m_narrowName = std::move(narrowName);
}

bool SharedBuffer<char>::openExisting(const wstring& name)
{
    std::string narrowName = usableName(name);
    wstring wideName = name;
    auto existing = std::make_unique<ipc::shared_memory_object>();
    try
    {
        *existing = ipc::shared_memory_object(ipc::open_only, narrowName.c_str(), ipc::read_write);
    }
    catch (const ipc::interprocess_exception& error)
    {
        if (error.get_error_code() == ipc::not_found_error)
        {
            return false;
        }
        fail(error);
    }
    m_object = std::move(existing);
    m_removeOnClose = false;
    m_name = std::move(wideName);
    m_narrowName = std::move(narrowName);
    return true;
}

bool SharedBuffer<char>::remove(const wstring& name)
{
    return removeNarrow(usableName(name));
}

// On POSIX the layer below needs memory for this, which may be just what is missing.
bool SharedBuffer<char>::removeNarrow(std::string_view narrowName) noexcept
{
#ifdef _WIN32
    try
    {
        return !isPath(narrowName) && removeFile(narrowName);
    }
    catch (const std::exception&)
    {
        return false;
    }
#else
    std::array<char, NAME_MAX + 2> path = {'/'};
    if (narrowName.size() > NAME_MAX)
    {
        return false;
    }
    narrowName.copy(&path[1], narrowName.size());
    return shm_unlink(path.data()) == 0;
#endif
}

void SharedBuffer<char>::write(const char* data, std::uint64_t size)
{
    fill(size, [data, size](char* out) { std::memcpy(out, data, size); });
}

void SharedBuffer<char>::fill(std::uint64_t size, const std::function<void(char*)>& make)
{
    ipc::shared_memory_object& shared = object();
    ipc::mapped_region region;
    withTurnedErrors([&] {
        shared.truncate(static_cast<ipc::offset_t>(size));
        reserveMemory(shared, static_cast<ipc::offset_t>(size));
        region = ipc::mapped_region(shared, ipc::read_write);
        mapAllPages(region);
    });
    try
    {
        make(static_cast<char*>(region.get_address()));
    }
    catch (...)
    {
        region = ipc::mapped_region();
        clear();
        throw;
    }
}

void SharedBuffer<char>::read(std::vector<char>& out) const
{
    const SharedCopy content = copy();
    out.assign(content.data(), content.data() + content.size());
}

SharedCopy SharedBuffer<char>::copy(std::uint64_t most) const
{
    SharedCopy content;
    if (const std::uint64_t wanted = std::min(size(), most))
    {
        withTurnedErrors([&] { content = SharedCopy(object(), wanted); });
    }
    return content;
}

std::uint64_t SharedBuffer<char>::size() const
{
    ipc::offset_t size = 0;
    return object().get_size(size) ? static_cast<std::uint64_t>(size) : 0;
}

void SharedBuffer<char>::clear()
{
    ipc::shared_memory_object& shared = object();
    withTurnedErrors([&] { shared.truncate(0); });
}

ipc::shared_memory_object& SharedBuffer<char>::object() const
{
    if (m_object == nullptr)
    {
        throw SharedMemoryException(WIDE("Shared buffer was not initialized"));
    }
    return *m_object;
}

} // namespace mp
