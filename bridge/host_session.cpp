#include "bridge/host_session.h"

#include "bridge/buffer_name.h"
#include "kolt/log.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"
#include "vrx_api/geometry/block_geometry.h"

#include <algorithm>
#include <exception>

namespace vrx::bridge
{

namespace
{

constexpr std::chrono::seconds kGrace{2};
constexpr std::chrono::hours kLongestLimit{24 * 365};
constexpr std::chrono::seconds kLastBytes{1}; // what a killed translator had written is there at once

Command commandOf(Command::EType type)
{
    Command command;
    command.setType(type);
    return command;
}

Command commandFor(const std::shared_ptr<ImportOptions>& options)
{
    Command command = commandOf(Command::EType::Import);
    if (const auto legacy = std::dynamic_pointer_cast<LegacyImportOptions>(options))
    {
        command.setInternalInterface(EFerrantInterface::Legacy);
        command.setLegacyImportOptions(legacy);
    }
    else
    {
        command.setImportOptions(options);
    }
    return command;
}

Command commandFor(const std::shared_ptr<ExportOptions>& options)
{
    Command command = commandOf(Command::EType::Export);
    if (const auto legacy = std::dynamic_pointer_cast<LegacyExportOptions>(options))
    {
        command.setInternalInterface(EFerrantInterface::Legacy);
        command.setLegacyExportOptions(legacy);
    }
    else
    {
        command.setExportOptions(options);
    }
    return command;
}

void handOn(const std::shared_ptr<IExchangeObject>& object, Listener& listener)
{
    if (const auto progress = std::dynamic_pointer_cast<ExcProgress>(object))
    {
        listener.onProgress(*progress);
    }
    else if (const auto message = std::dynamic_pointer_cast<ExcMessage>(object))
    {
        listener.onMessage(message->get());
    }
    else if (const auto log = std::dynamic_pointer_cast<ExcLog>(object))
    {
        listener.onLog(log->get());
    }
    else if (const auto stage = std::dynamic_pointer_cast<ExcStageFinished>(object))
    {
        listener.onStage(stage->stage());
    }
    else
    {
        listener.onObject(object);
    }
}

} // namespace

HostSession::HostSession(const std::vector<std::string>& command)
    : m_translator(command, &m_journal)
{
}

HostSession::~HostSession()
{
    if (m_end.empty())
    {
        m_translator.finish();
        removeBuffers();
    }
}

void HostSession::setTimeLimit(std::chrono::milliseconds limit)
{
    m_timeLimit = std::min<std::chrono::milliseconds>(limit, kLongestLimit);
}

template <class Operation>
auto HostSession::endingOnFailure(Operation operation)
{
    try
    {
        return operation();
    }
    catch (...)
    {
        stop();
        throw;
    }
}

FerrantInfo HostSession::info()
{
    return endingOnFailure([this] {
        Listener listener;
        sendCommand(commandOf(Command::EType::Info), listener);
        mp::wstring text = receive();
        MessageHead head = peekEnvelope(text);
        while (head.kind == EMessageKind::Envelope)
        {
            takeObject(text, head, listener);
            text = receive();
            head = peekEnvelope(text);
        }
        if (head.kind != EMessageKind::Info)
        {
            failWithoutInfo(text, head);
        }
        FerrantInfo info;
        parse(text, info, "description of itself");
        return info;
    });
}

// An error says why.
void HostSession::failWithoutInfo(const mp::wstring& text, const MessageHead& head)
{
    Result result;
    if (head.kind == EMessageKind::Result)
    {
        parse(text, result, "result");
    }
    const std::string reason = mp::toNarrow(result.message());
    fail(TranslatorFailure::EKind::Protocol,
         "The translator does not say what it is" + (reason.empty() ? "." : ": " + reason));
}

Result HostSession::ping()
{
    return endingOnFailure([this] {
        Listener listener;
        sendCommand(commandOf(Command::EType::Ping), listener);
        return awaitResult(listener);
    });
}

Result HostSession::importFile(const std::shared_ptr<ImportOptions>& options, Listener& listener)
{
    const Command command = commandFor(options);
    return endingOnFailure([&] {
        sendCommand(command, listener);
        return awaitResult(listener);
    });
}

Result HostSession::exportFile(const std::shared_ptr<ExportOptions>& options, const ObjectSource& nextObject,
                               Listener& listener)
{
    const Command command = commandFor(options);
    return endingOnFailure([&] {
        sendCommand(command, listener);
        std::optional<Result> result;
        bool takesMore = true;
        while (!result && takesMore)
        {
            const std::shared_ptr<IExchangeObject> object = nextObject();
            takesMore = object && sendObject(object);
            // A translator that waits for us to read would never read on.
            while (!result && m_translator.output().isReady())
            {
                result = take(receive(), listener);
            }
        }
        // One that takes no more may have answered why.
        send(Result());
        return result ? *result : awaitResult(listener);
    });
}

Wait HostSession::wait() const
{
    Wait wait;
    wait.cancelled = &m_isCancelled;
    if (m_timeLimit)
    {
        wait.deadline = std::chrono::steady_clock::now() + *m_timeLimit;
    }
    return wait;
}

// An answer that nobody has asked for must not be taken for the one to this command.
void HostSession::sendCommand(const Command& command, Listener& listener)
{
    if (!m_end.empty())
    {
        throw TranslatorFailure(TranslatorFailure::EKind::Died, "The translator has ended: " + m_end + ".", m_end);
    }
    while (m_translator.output().isReady())
    {
        const mp::wstring text = receive();
        const MessageHead head = peekEnvelope(text);
        if (head.kind != EMessageKind::Envelope)
        {
            fail(TranslatorFailure::EKind::Protocol, "The translator sent an answer that nobody had asked for.");
        }
        takeObject(text, head, listener);
    }
    if (!send(command))
    {
        failAsDead("The translator does not take commands: ");
    }
}

// False when the translator takes no more.
bool HostSession::send(const mp::ISerializable& message)
{
    const mp::wstring text = toText(message);
    m_undelivered.addFrom(text);
    try
    {
        writeFrame(m_translator.input(), text, wait());
        return true;
    }
    catch (const TimedOut&)
    {
        fail(TranslatorFailure::EKind::TimedOut, "The translator did not take a message in time.");
    }
    catch (const Cancelled&)
    {
        fail(TranslatorFailure::EKind::Cancelled, "The translator's work was cancelled.");
    }
    catch (const NoReader&)
    {
        return false;
    }
    catch (const StreamError& failure)
    {
        fail(TranslatorFailure::EKind::Died, std::string("The translator can not be told: ") + failure.what());
    }
}

bool HostSession::sendObject(const std::shared_ptr<IExchangeObject>& object)
{
    ExchangeObjectWrapper envelope;
    envelope.set(object);
    envelope.setCompression(m_compression);
    try
    {
        return send(envelope);
    }
    catch (...)
    {
        // The bodies of a block are in shared memory before anybody is told of them.
        if (const auto bodies = std::dynamic_pointer_cast<ExcBlockGeometry>(object))
        {
            bodies->own(true);
        }
        throw;
    }
}

mp::wstring HostSession::receive()
{
    std::optional<mp::wstring> text;
    std::string reason;
    try
    {
        text = m_messages.read(wait());
    }
    catch (const TimedOut&)
    {
        fail(TranslatorFailure::EKind::TimedOut, "The translator did not answer in time.");
    }
    catch (const Cancelled&)
    {
        fail(TranslatorFailure::EKind::Cancelled, "The translator's work was cancelled.");
    }
    catch (const NoMessage& failure)
    {
        fail(TranslatorFailure::EKind::Protocol, std::string("The translator sent no message: ") + failure.what());
    }
    catch (const StreamError& failure)
    {
        reason = std::string(", ") + failure.what();
    }
    if (!text)
    {
        failAsDead("The translator died: ", reason);
    }
    try
    {
        JsonTextIO::check(*text, m_readRules);
    }
    catch (const std::logic_error& failure)
    {
        UndeliveredBuffers::removeNamedIn(*text);
        fail(TranslatorFailure::EKind::Protocol, std::string("The translator sent no message: ") + failure.what());
    }
    return *text;
}

Result HostSession::awaitResult(Listener& listener)
{
    std::optional<Result> result;
    while (!result)
    {
        result = take(receive(), listener);
    }
    return *result;
}

// The result, if it is one.
std::optional<Result> HostSession::take(const mp::wstring& text, Listener& listener)
{
    const MessageHead head = peekEnvelope(text);
    if (head.kind == EMessageKind::Envelope)
    {
        takeObject(text, head, listener);
        return std::nullopt;
    }
    if (head.kind != EMessageKind::Result)
    {
        fail(TranslatorFailure::EKind::Protocol, "The translator sent neither an object nor a result.");
    }
    Result result;
    parse(text, result, "result");
    return result;
}

void HostSession::parse(const mp::wstring& text, mp::ISerializable& message, const char* what)
{
    try
    {
        fromText(text, message);
    }
    catch (const std::exception& failure)
    {
        fail(TranslatorFailure::EKind::Protocol, std::string("The translator sent no ") + what + ": " + failure.what());
    }
}

void HostSession::takeObject(const mp::wstring& text, const MessageHead& head, Listener& listener)
{
    m_undelivered.add(head.bufferName);
    listener.onHead(head);
    ExchangeObjectWrapper envelope;
    envelope.setDelayedLoading(true);
    parse(text, envelope, "object");

    const std::shared_ptr<IExchangeObject>& object = envelope.get();
    const bool isShared = !head.bufferName.empty();
    // A newer translator may send what we do not know.
    if (object == nullptr || (isShared && !listener.wants(*object)))
    {
        m_undelivered.remove(head.bufferName);
        return;
    }
    object->setReadRules(m_readRules);
    if (isShared && !m_isLazy)
    {
        load(*object, head.bufferName);
    }
    handOn(object, listener);
}

void HostSession::load(IExchangeObject& object, const mp::wstring& buffer)
{
    try
    {
        object.load();
    }
    catch (const std::exception& failure)
    {
        fail(TranslatorFailure::EKind::Unloadable,
             std::string("What the translator sent can not be loaded: ") + failure.what());
    }
    m_undelivered.delivered(buffer);
    m_loaded.insert(mp::toNarrow(buffer));
}

void HostSession::fail(TranslatorFailure::EKind kind, const std::string& text)
{
    stop();
    throw TranslatorFailure(kind, text, m_end);
}

// It gets a moment to end by itself, so that the text tells how it did.
void HostSession::failAsDead(const std::string& text, const std::string& reason)
{
    finishTranslator();
    removeBuffers();
    throw TranslatorFailure(TranslatorFailure::EKind::Died, text + m_end + reason + '.', m_end);
}

// It is asked to end first, since it may be about to tell of shared memory.
void HostSession::stop() noexcept
{
    if (!m_end.empty())
    {
        return;
    }
    m_translator.terminate();
    if (!drain(kGrace))
    {
        m_translator.kill();
        drain(kLastBytes);
    }
    finishTranslator();
    removeBuffers();
}

void HostSession::finishTranslator() noexcept
{
    m_translator.finish();
    try
    {
        m_end = m_translator.endInWords();
    }
    catch (const std::exception&)
    {
        m_end = "it ended"; // short enough to need no memory
    }
}

// The shared memory that a message names, which nobody will load any more.
void HostSession::note(const mp::wstring& text)
{
    try
    {
        JsonTextIO::check(text, m_readRules);
        m_undelivered.addFrom(text);
    }
    catch (const std::logic_error&)
    {
        UndeliveredBuffers::removeNamedIn(text);
    }
}

// Reads on for the names of shared memory only, and tells whether the translator's output has come to its end.
bool HostSession::drain(std::chrono::milliseconds limit) noexcept
{
    try
    {
        const Wait wait = {std::chrono::steady_clock::now() + limit, nullptr};
        while (const std::optional<mp::wstring> text = m_messages.read(wait))
        {
            note(*text);
        }
        return true;
    }
    catch (const std::exception& failure)
    {
        kolt::log(kolt::kDebug, "What the translator still sent can not be read: ", failure.what());
        return false;
    }
}

void HostSession::removeBuffers() noexcept
{
    try
    {
        m_journal.forEachName([this](std::string_view name) {
            if (isBufferName(name) && m_loaded.find(name) == m_loaded.end())
            {
                mp::SharedBuffer<char>::removeNarrow(name);
            }
        });
    }
    catch (const std::exception& failure)
    {
        kolt::log(kolt::kWarning, "The journal of shared memory can not be read: ", failure.what());
    }
    m_undelivered.removeAll();
}

} // namespace vrx::bridge
