#pragma once

#include <Message_Printer.hxx>

#include <string>

namespace vrx::bridge
{
class TranslatorChannel;
}

/// Sends what the modelling kernel reports to the host's log and remembers the last failure among it.
class KernelMessages : public Message_Printer
{
public:
    /// With `trace` also what the kernel tells for its own developers.
    KernelMessages(vrx::bridge::TranslatorChannel& channel, bool trace)
        : m_channel(channel)
    {
        SetTraceLevel(trace ? Message_Trace : Message_Info);
    }

    const std::string& lastFailure() const { return m_lastFailure; }

protected:
    void send(const TCollection_AsciiString& text, Message_Gravity gravity) const override;

private:
    vrx::bridge::TranslatorChannel& m_channel;
    mutable std::string m_lastFailure;
};

/// What the modelling kernel reports goes to these messages while this lives, and nowhere else.
class MessageRedirection
{
public:
    explicit MessageRedirection(const Handle(KernelMessages) & messages);
    MessageRedirection(const MessageRedirection&) = delete;
    MessageRedirection& operator=(const MessageRedirection&) = delete;
    ~MessageRedirection();

private:
    Handle(KernelMessages) m_messages;
};
