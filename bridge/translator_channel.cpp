#include "bridge/translator_channel.h"

#include "bridge/buffer_journal.h"
#include "bridge/termination.h"
#include "kolt/log.h"
#include "mp/narrow.h"
#include "vrx_api/exchange/peek_envelope.h"

#include <chrono>
#include <exception>
#include <stdexcept>
#include <utility>

namespace vrx::bridge
{

namespace
{

constexpr std::chrono::milliseconds kTimeToLoad{500}; // for a host whose translator was told to end

} // namespace

TranslatorChannel::TranslatorChannel()
    : m_input(Stream::standardInput())
    , m_output(Stream::takeStandardOutput())
{
    keepInheritedJournals();
}

// After the end of the output the host closes the input, once it has loaded all that it wants; a dead one has closed
// it.
TranslatorChannel::~TranslatorChannel()
{
    m_output.close();
    awaitHostsEnd({std::nullopt, &DelayedTermination::isDue()});
    if (isTerminationDue())
    {
        awaitHostsEnd({std::chrono::steady_clock::now() + kTimeToLoad, nullptr});
    }
}

// Reads the input to its end, for the names of shared memory only.
void TranslatorChannel::awaitHostsEnd(const Wait& wait) noexcept
{
    try
    {
        while (const std::optional<mp::wstring> text = m_messages.read(wait))
        {
            m_undelivered.add(peekEnvelope(*text).bufferName);
        }
    }
    catch (const std::exception& failure)
    {
        kolt::log(kolt::kDebug, "The end of the host is not awaited: ", failure.what());
    }
}

std::optional<Command> TranslatorChannel::receive()
{
    passOverObjects();
    // A host that goes on has loaded most of what it was told of.
    m_undelivered.forgetLoaded();
    while (const std::optional<mp::wstring> text = receiveCommandText())
    {
        try
        {
            Command command;
            JsonTextIO::check(*text, m_readRules);
            fromText(*text, command);
            m_hasObjectsToCome = command.type() == Command::EType::Export;
            return command;
        }
        catch (const std::logic_error& failure)
        {
            Result result;
            result.setCode(Result::ECode::Error);
            result.setMessage(mp::toWide(std::string("This is no command: ") + failure.what()));
            result.setFinished(true);
            send(result);
        }
    }
    return std::nullopt;
}

// Those of an export that was answered before it had got all. Nobody asks for them any more, so that one which breaks
// the rules is no failure.
void TranslatorChannel::passOverObjects()
{
    while (m_hasObjectsToCome)
    {
        try
        {
            if (const std::optional<mp::wstring> object = receiveObjectText())
            {
                m_undelivered.remove(peekEnvelope(*object).bufferName);
            }
        }
        catch (const std::logic_error& failure)
        {
            kolt::log(kolt::kDebug, "An object that nobody asks for is passed over: ", failure.what());
        }
    }
}

std::optional<mp::wstring> TranslatorChannel::receiveCommandText()
{
    if (m_next)
    {
        return std::exchange(m_next, std::nullopt);
    }
    return receiveText();
}

std::shared_ptr<IExchangeObject> TranslatorChannel::receiveObject()
{
    while (const std::optional<mp::wstring> text = receiveObjectText())
    {
        const mp::wstring buffer = peekEnvelope(*text).bufferName;
        ExchangeObjectWrapper envelope;
        envelope.setDelayedLoading(true);
        fromText(*text, envelope);
        if (const std::shared_ptr<IExchangeObject>& object = envelope.get())
        {
            object->setReadRules(m_readRules);
            object->load();
            m_undelivered.delivered(buffer);
            return object;
        }
        m_undelivered.remove(buffer);
    }
    return nullptr;
}

void TranslatorChannel::requireRules(const mp::wstring& text) const
{
    try
    {
        JsonTextIO::check(text, m_readRules);
    }
    catch (const std::logic_error&)
    {
        UndeliveredBuffers::removeNamedIn(text);
        throw;
    }
}

// Nothing behind the last object of an export.
std::optional<mp::wstring> TranslatorChannel::receiveObjectText()
{
    if (!m_hasObjectsToCome)
    {
        return std::nullopt;
    }
    std::optional<mp::wstring> text = receiveText();
    if (!text)
    {
        m_hasObjectsToCome = false;
        throw StreamError("the host ended within an export");
    }
    const MessageHead head = peekEnvelope(*text);
    m_hasObjectsToCome = head.kind == EMessageKind::Envelope;
    if (head.kind == EMessageKind::Command)
    {
        m_next = text; // from a host that does not tell the end
    }
    if (!m_hasObjectsToCome)
    {
        return std::nullopt;
    }
    requireRules(*text);
    m_undelivered.add(head.bufferName);
    return text;
}

void TranslatorChannel::send(const Result& result)
{
    sendText(toText(result));
}

void TranslatorChannel::send(const FerrantInfo& info)
{
    sendText(toText(info));
}

void TranslatorChannel::send(const std::shared_ptr<IExchangeObject>& object)
{
    ExchangeObjectWrapper envelope;
    envelope.set(object);
    envelope.setCompression(m_compression);
    sendText(toText(envelope));
    if (isTerminationDue())
    {
        throw Cancelled("The translator was told to end.");
    }
}

void TranslatorChannel::message(const mp::wstring& text)
{
    send(std::make_shared<ExcMessage>(text));
}

void TranslatorChannel::log(const mp::wstring& text)
{
    send(std::make_shared<ExcLog>(text));
}

std::optional<mp::wstring> TranslatorChannel::receiveText()
{
    if (m_termination == nullptr)
    {
        m_termination = std::make_unique<DelayedTermination>();
    }
    try
    {
        return m_messages.read({std::nullopt, &DelayedTermination::isDue()});
    }
    catch (const Cancelled&)
    {
        return std::nullopt;
    }
}

void TranslatorChannel::sendText(const mp::wstring& text)
{
    m_undelivered.addFrom(text);
    try
    {
        writeFrame(m_output, text);
    }
    catch (const StreamError&)
    {
        m_undelivered.removeAll();
        throw;
    }
}

bool TranslatorChannel::isTerminationDue()
{
    return DelayedTermination::isDue();
}

} // namespace vrx::bridge
