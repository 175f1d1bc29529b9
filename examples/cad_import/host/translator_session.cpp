#include "translator_session.h"

#include "common/framing.h"
#include "common/shared_buffers.h"
#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/json_value.h"

#include <cstdint>
#include <optional>

namespace
{

bool hasKey(const mp::wstring& text, const mp::wchar* key)
{
    mp::wstringstream stream(text);
    vrx::JsonDocument document;
    vrx::JsonTextIO::read(stream, document);
    return document.IsObject() && document.HasMember(key);
}

bool isEnvelope(const mp::wstring& text)
{
    return hasKey(text, WIDE("exchange_object_name"));
}

void handOn(const std::shared_ptr<vrx::IExchangeObject>& object, ImportListener& listener)
{
    if (const auto progress = std::dynamic_pointer_cast<vrx::ExcProgress>(object))
    {
        listener.onProgress(*progress);
    }
    else if (const auto message = std::dynamic_pointer_cast<vrx::ExcMessage>(object))
    {
        listener.onMessage(message->get());
    }
    else if (const auto log = std::dynamic_pointer_cast<vrx::ExcLog>(object))
    {
        listener.onLog(log->get());
    }
    else if (const auto stage = std::dynamic_pointer_cast<vrx::ExcStageFinished>(object))
    {
        listener.onStage(stage->stage());
    }
    else
    {
        listener.onObject(object);
    }
}

void load(vrx::IExchangeObject& object, const mp::wstring& buffer)
{
    try
    {
        object.load();
    }
    catch (const std::exception& failure)
    {
        shared_buffers::remove(buffer);
        throw TranslatorFailure(std::string("What the translator sent can not be loaded: ") + failure.what());
    }
}

// Hands on what an envelope holds. Loading removes the buffer of a large object.
void take(const mp::wstring& envelope, ImportListener& listener)
{
    vrx::ExchangeObjectWrapper wrapper;
    wrapper.setDelayedLoading(true);
    framing::fromText(envelope, wrapper);

    const std::shared_ptr<vrx::IExchangeObject>& object = wrapper.get();
    const mp::wstring buffer = shared_buffers::nameIn(envelope);
    // A newer translator may send what we do not know.
    const bool isWanted = object && (buffer.empty() || listener.wants(*object));
    if (isWanted && !buffer.empty())
    {
        load(*object, buffer);
    }
    if (isWanted)
    {
        handOn(object, listener);
    }
    else if (!buffer.empty())
    {
        shared_buffers::remove(buffer);
    }
}

template <class Message>
Message parsed(const mp::wstring& text, const char* what)
{
    Message message;
    try
    {
        framing::fromText(text, message);
    }
    catch (const std::invalid_argument& failure)
    {
        throw TranslatorFailure(std::string("The translator sent no ") + what + ": " + failure.what());
    }
    return message;
}

} // namespace

TranslatorSession::TranslatorSession(const std::string& program)
    : m_translator(program)
{
    m_translator.takeInterrupts();
}

vrx::FerrantInfo TranslatorSession::info()
{
    vrx::Command command;
    command.setType(vrx::Command::EType::Info);
    send(command);
    return parsed<vrx::FerrantInfo>(receive(), "description of itself");
}

vrx::Result TranslatorSession::ping()
{
    vrx::Command command;
    command.setType(vrx::Command::EType::Ping);
    send(command);
    return parsed<vrx::Result>(receive(), "result");
}

vrx::Result TranslatorSession::import(const std::shared_ptr<vrx::ImportOptions>& options, ImportListener& listener)
{
    vrx::Command command;
    command.setType(vrx::Command::EType::Import);
    if (const auto legacy = std::dynamic_pointer_cast<vrx::LegacyImportOptions>(options))
    {
        command.setInternalInterface(vrx::EFerrantInterface::Legacy);
        command.setLegacyImportOptions(legacy);
    }
    else
    {
        command.setImportOptions(options);
    }
    send(command);

    try
    {
        mp::wstring text = receive();
        while (isEnvelope(text))
        {
            if (ChildProcess::wasInterrupted())
            {
                throw TranslatorFailure("The import was interrupted.");
            }
            take(text, listener);
            text = receive();
        }
        return parsed<vrx::Result>(text, "result");
    }
    catch (...)
    {
        dropRest();
        throw;
    }
}

void TranslatorSession::finish()
{
    m_translator.closeInput();
}

// Ends the translator, and takes what it has told of out of the system.
void TranslatorSession::dropRest() noexcept
{
    try
    {
        m_translator.terminate();
        while (const std::optional<mp::wstring> text = framing::read(m_translator.output()))
        {
            const mp::wstring buffer = shared_buffers::nameIn(*text);
            if (!buffer.empty())
            {
                shared_buffers::remove(buffer);
            }
        }
    }
    catch (const std::exception&)
    {
        // What is left on the pipe can't be read.
    }
}

void TranslatorSession::send(const vrx::Command& command)
{
    try
    {
        framing::write(m_translator.input(), framing::toText(command));
    }
    catch (const std::runtime_error&)
    {
        throw TranslatorFailure("The translator does not take commands: " + m_translator.end() + ".");
    }
}

mp::wstring TranslatorSession::receive()
{
    std::optional<mp::wstring> text;
    std::string reason;
    try
    {
        text = framing::read(m_translator.output());
    }
    catch (const std::runtime_error& failure)
    {
        reason = std::string(", ") + failure.what();
    }
    if (!text)
    {
        throw TranslatorFailure("The translator died: " + m_translator.end() + reason + ".");
    }
    return *text;
}
