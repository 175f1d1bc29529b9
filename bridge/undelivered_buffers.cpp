#include "bridge/undelivered_buffers.h"

#include "bridge/buffer_name.h"
#include "kolt/log.h"
#include "mp/shared_buffer.h"

#include <exception>
#include <iterator>

namespace vrx::bridge
{

namespace
{

// One that cannot be opened is another user's.
bool isThere(const mp::wstring& name)
{
    try
    {
        return mp::SharedBuffer<char>().openExisting(name);
    }
    catch (const mp::SharedMemoryException&)
    {
        return false;
    }
}

} // namespace

UndeliveredBuffers::~UndeliveredBuffers()
{
    removeAll();
}

void UndeliveredBuffers::add(const mp::wstring& name)
{
    if (isBufferName(name))
    {
        m_names.insert(name);
    }
}

void UndeliveredBuffers::delivered(const mp::wstring& name)
{
    m_names.erase(name);
}

void UndeliveredBuffers::remove(const mp::wstring& name) noexcept
{
    if (!isBufferName(name))
    {
        return;
    }
    try
    {
        mp::SharedBuffer<char>::remove(name);
    }
    catch (const std::exception& failure)
    {
        kolt::log(kolt::kWarning, "An undelivered buffer cannot be removed: ", failure.what());
    }
    m_names.erase(name);
}

void UndeliveredBuffers::forgetLoaded()
{
    for (auto name = m_names.begin(); name != m_names.end();)
    {
        name = isThere(*name) ? std::next(name) : m_names.erase(name);
    }
}

void UndeliveredBuffers::removeAll() noexcept
{
    while (!m_names.empty())
    {
        remove(mp::wstring(*m_names.begin()));
    }
}

} // namespace vrx::bridge
