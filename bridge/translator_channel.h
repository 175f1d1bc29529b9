#pragma once

#include "bridge/frames.h"
#include "bridge/undelivered_buffers.h"
#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_ferrant_info.h"

#include <memory>
#include <optional>
#include <string>

namespace vrx::bridge
{

class DelayedTermination;

/// The translator's side of the pipes. There is one in a process: it takes standard output for itself and turns what
/// others print there to standard error. When the channel ends, it closes the output and waits until the host closes
/// the input, since the host may still be loading; SIGTERM limits this wait. What nobody has loaded then is removed
/// from the system. From the first command on SIGTERM does not end the process, but the channel does, behind the next
/// object. One thread at a time uses the channel, for sending, too; `isTerminationDue` is for any thread.
class VRX_BRIDGE TranslatorChannel
{
public:
    TranslatorChannel();
    TranslatorChannel(const TranslatorChannel&) = delete;
    TranslatorChannel& operator=(const TranslatorChannel&) = delete;
    virtual ~TranslatorChannel();

    /// The next command, or nothing when there will be no more. A text that is no command, or breaks the read rules, is
    /// answered here. Throws StreamError when the pipe breaks.
    std::optional<Command> receive();

    /// The next object of an export, loaded, or null behind the last. One that no class has is passed over. Throws
    /// StreamError when the host ends before, and what the read rules and loading throw.
    std::shared_ptr<IExchangeObject> receiveObject();

    /// An answer.
    void send(const Result& result);
    void send(const FerrantInfo& info);

    /// Throws StreamError when the host is gone, and Cancelled, when the object is on its way, after SIGTERM.
    virtual void send(const std::shared_ptr<IExchangeObject>& object);

    /// A text for the user, and one for the log.
    void message(const mp::wstring& text);
    void log(const mp::wstring& text);

    /// Of the objects that are sent. At first it is the fastest: buffers live only until the host has loaded them, but
    /// a large model must not fill a small shared memory.
    void setCompression(ECompression compression) { m_compression = compression; }

    /// Of the commands, and of the objects of an export. It is strict reading until rules are set.
    void setReadRules(const ReadRules& rules) { m_readRules = rules; }

    /// Messages as texts, for a translator that makes and reads them by itself.
    std::optional<mp::wstring> receiveText();
    void sendText(const mp::wstring& text);

    /// Whether SIGTERM has come.
    static bool isTerminationDue();

private:
    void passOverObjects();
    std::optional<mp::wstring> receiveCommandText();
    std::optional<mp::wstring> receiveObjectText();
    void requireRules(const mp::wstring& text) const;
    void awaitHostsEnd(const Wait& wait) noexcept;

    Stream m_input;
    Stream m_output;
    FrameReader m_messages{m_input};
    std::unique_ptr<DelayedTermination> m_termination;
    ECompression m_compression = ECompression::Fast;
    ReadRules m_readRules = ReadRules::strict();
    UndeliveredBuffers m_undelivered;  // either way
    bool m_hasObjectsToCome = false;   // of an export
    std::optional<mp::wstring> m_next; // a command that has come already
};

} // namespace vrx::bridge
