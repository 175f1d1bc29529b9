#include "host_channel.h"

#include "common/framing.h"
#include "common/shared_buffers.h"
#include "delayed_termination.h"
#include "mp/narrow.h"

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <system_error>

namespace
{

int takeOutput()
{
    const int output = ::dup(STDOUT_FILENO);
    if (output < 0 || ::dup2(STDERR_FILENO, STDOUT_FILENO) < 0)
    {
        throw std::system_error(errno, std::generic_category(), "cannot take standard output");
    }
    return output;
}

} // namespace

HostChannel::HostChannel()
    : m_output(takeOutput())
{
    std::signal(SIGPIPE, SIG_IGN);
}

std::optional<mp::wstring> HostChannel::receive()
{
    return framing::read(STDIN_FILENO);
}

void HostChannel::send(const mp::ISerializable& message)
{
    sendFrame(framing::toText(message));
    m_told.clear();
}

void HostChannel::send(const std::shared_ptr<vrx::IExchangeObject>& object)
{
    vrx::ExchangeObjectWrapper envelope;
    envelope.set(object);
    // The buffers live only until the host has loaded them, but a large model must not fill a small shared memory.
    envelope.setCompression(vrx::ECompression::Fast);
    const mp::wstring text = framing::toText(envelope);
    const mp::wstring buffer = shared_buffers::nameIn(text);
    if (!buffer.empty())
    {
        m_told.push_back(buffer);
    }
    sendFrame(text);
    if (DelayedTermination::isDue())
    {
        throw std::runtime_error("The translator was told to end.");
    }
}

void HostChannel::sendFrame(const mp::wstring& text)
{
    try
    {
        framing::write(m_output, text);
    }
    catch (...)
    {
        for (const mp::wstring& buffer : m_told)
        {
            shared_buffers::remove(buffer);
        }
        m_told.clear();
        throw;
    }
}

void HostChannel::message(const std::string& text)
{
    send(std::make_shared<vrx::ExcMessage>(mp::toWide(text)));
}

void HostChannel::log(const std::string& text)
{
    send(std::make_shared<vrx::ExcLog>(mp::toWide(text)));
}
