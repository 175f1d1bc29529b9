#include "bridge/undelivered_buffers.h"

#include "bridge/buffer_name.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"
#include "vrx_api/exchange/envelope_keys.h"
#include "vrx_api/exchange/peek_envelope.h"

#include <algorithm>
#include <array>
#include <exception>
#include <iterator>
#include <new>

namespace vrx::bridge
{

namespace
{

// One that cannot be opened is another user's.
bool isThere(const std::string& name)
{
    try
    {
        return mp::SharedBuffer<char>().openExisting(mp::toWide(name));
    }
    catch (const mp::SharedMemoryException&)
    {
        return false;
    }
}

// It needs no memory, on Windows once a buffer was opened.
void removeBuffer(mp::wstring_view name) noexcept
{
    if (isBufferName(name))
    {
        std::array<char, kBufferNameSize> narrow = {};
        std::transform(name.begin(), name.end(), narrow.begin(),
                       [](mp::wchar unit) { return static_cast<char>(unit); });
        mp::SharedBuffer<char>::removeNarrow({narrow.data(), narrow.size()});
    }
}

} // namespace

UndeliveredBuffers::~UndeliveredBuffers()
{
    removeAll();
}

void UndeliveredBuffers::add(const mp::wstring& name)
{
    if (!isBufferName(name))
    {
        return;
    }
    try
    {
        m_names.insert(mp::toNarrow(name));
    }
    catch (const std::bad_alloc&)
    {
        removeBuffer(name);
        throw;
    }
}

void UndeliveredBuffers::addFrom(const mp::wstring& message)
{
    try
    {
        add(peekEnvelope(message).bufferName);
    }
    catch (const std::exception&)
    {
        removeNamedIn(message);
        throw;
    }
}

// Takes the name from the text as this library writes it, without memory.
void UndeliveredBuffers::removeNamedIn(const mp::wstring& message) noexcept
{
    constexpr mp::wstring_view kToValue = WIDE("\": \"");
    for (const Key key : {kEnvelopeData, kObjectBufferName})
    {
        const std::size_t place = message.find(key.text, 0, key.size);
        if (place == mp::wstring::npos)
        {
            continue;
        }
        const std::size_t begin = std::min(place + key.size + kToValue.size(), message.size());
        removeBuffer(mp::wstring_view(message).substr(begin, kBufferNameSize));
    }
}

void UndeliveredBuffers::delivered(const mp::wstring& name)
{
    m_names.erase(mp::toNarrow(name));
}

void UndeliveredBuffers::remove(const mp::wstring& name)
{
    if (isBufferName(name))
    {
        const std::string narrowName = mp::toNarrow(name);
        mp::SharedBuffer<char>::removeNarrow(narrowName);
        m_names.erase(narrowName);
    }
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
    for (const std::string& name : m_names)
    {
        mp::SharedBuffer<char>::removeNarrow(name);
    }
    m_names.clear();
}

} // namespace vrx::bridge
