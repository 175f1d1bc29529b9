#include "bridge/undelivered_buffers.h"

#include "kolt/log.h"
#include "mp/shared_buffer.h"

#include <exception>

namespace vrx::bridge
{

UndeliveredBuffers::~UndeliveredBuffers()
{
    removeAll();
}

void UndeliveredBuffers::add(const mp::wstring& name)
{
    if (!name.empty())
    {
        m_names.insert(name);
    }
}

void UndeliveredBuffers::delivered(const mp::wstring& name)
{
    m_names.erase(name);
}

void UndeliveredBuffers::removeAll() noexcept
{
    for (const mp::wstring& name : m_names)
    {
        try
        {
            mp::SharedBuffer<char>::remove(name);
        }
        catch (const std::exception& failure)
        {
            kolt::log(kolt::kWarning, "An undelivered buffer cannot be removed: ", failure.what());
        }
    }
    m_names.clear();
}

} // namespace vrx::bridge
