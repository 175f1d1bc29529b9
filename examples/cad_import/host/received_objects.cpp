#include "received_objects.h"

#include "common/shared_buffers.h"

ReceivedObjects::~ReceivedObjects()
{
    for (const Entry& entry : m_waiting)
    {
        shared_buffers::remove(entry.buffer);
    }
}

void ReceivedObjects::add(const std::shared_ptr<vrx::IExchangeObject>& object, const mp::wstring& buffer)
{
    m_waiting.push_back({object, buffer});
}

std::shared_ptr<vrx::IExchangeObject> ReceivedObjects::loadFirst()
{
    // Loading removes the buffer; when it fails, the entry stays and the destructor does.
    std::shared_ptr<vrx::IExchangeObject> object = m_waiting.front().object;
    object->load();
    m_waiting.pop_front();
    return object;
}

void ReceivedObjects::keep(const std::function<bool(const vrx::IExchangeObject&)>& test)
{
    std::deque<Entry> kept;
    while (!m_waiting.empty())
    {
        if (test(*m_waiting.back().object))
        {
            kept.push_front(m_waiting.back());
        }
        else
        {
            shared_buffers::remove(m_waiting.back().buffer);
        }
        m_waiting.pop_back();
    }
    m_waiting.swap(kept);
}
