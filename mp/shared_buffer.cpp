#include "mp/shared_buffer.h"

#include "mp/narrow.h"

#include <boost/interprocess/mapped_region.hpp>
#include <boost/interprocess/shared_memory_object.hpp>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>

#include <cerrno>
#endif

#include <cstring>
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
    int error = 0;
    do
    {
        error = posix_fallocate(object.get_mapping_handle().handle, 0, size);
    } while (error == EINTR);
    if (error != 0)
    {
        // Nobody must find a size that no memory stands behind.
        object.truncate(0);
        throw ipc::interprocess_exception(ipc::error_info(error));
    }
#endif
}

// On Windows an object is a file of its name in a folder of the layer below. A name from the other program must not
// lead out of that folder; elsewhere the system refuses such a name itself.
void refusePath(const std::string& name)
{
#ifdef _WIN32
    if (name.find_first_of("/\\:") != std::string::npos)
    {
        throw ipc::interprocess_exception(ipc::error_info(ERROR_INVALID_NAME));
    }
#else
    static_cast<void>(name);
#endif
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
        throw SharedMemoryException(toWide(error.what()));
    }
}

} // namespace

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
        ipc::shared_memory_object::remove(m_narrowName.c_str());
    }
}

void SharedBuffer<char>::open(const wstring& name, bool removeOnClose)
{
    if (name.empty())
    {
        throw SharedMemoryException(WIDE("Shared variable name mustn't be empty"));
    }
    wstring wideName = name;
    std::string narrowName = toNarrow(name);
    withTurnedErrors([&] {
        refusePath(narrowName);
        m_object = std::make_unique<ipc::shared_memory_object>(ipc::open_or_create, narrowName.c_str(), ipc::read_write,
                                                               ownerOnly());
    });
    m_removeOnClose = removeOnClose;
    m_name = std::move(wideName);
    m_narrowName = std::move(narrowName);
}

void SharedBuffer<char>::write(const char* data, std::uint64_t size)
{
    ipc::shared_memory_object& shared = object();
    withTurnedErrors([&] {
        shared.truncate(static_cast<ipc::offset_t>(size));
        if (size != 0)
        {
            reserveMemory(shared, static_cast<ipc::offset_t>(size));
        }
        const ipc::mapped_region region(shared, ipc::read_write);
        std::memcpy(region.get_address(), data, size);
    });
}

void SharedBuffer<char>::read(std::vector<char>& out) const
{
    const ipc::shared_memory_object& shared = object();
    out.clear();
    ipc::offset_t size = 0;
    if (!shared.get_size(size) || size == 0)
    {
        return;
    }
    withTurnedErrors([&] {
        const ipc::mapped_region region(shared, ipc::read_write);
        const char* const bytes = static_cast<const char*>(region.get_address());
        out.assign(bytes, bytes + region.get_size());
    });
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
