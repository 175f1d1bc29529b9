#include "kernel/kernel_messages.h"

#include "bridge/translator_channel.h"
#include "mp/narrow.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <TCollection_AsciiString.hxx>

#include <stdexcept>

void KernelMessages::send(const TCollection_AsciiString& text, Message_Gravity gravity) const
{
    TCollection_AsciiString line = text;
    line.LeftAdjust();
    line.RightAdjust();
    if (line.IsEmpty() || gravity < GetTraceLevel())
    {
        return;
    }
    if (gravity >= Message_Fail)
    {
        m_lastFailure = line.ToCString();
    }
    try
    {
        m_channel.log(mp::toWide(line.ToCString()));
    }
    catch (const std::runtime_error&)
    {
        // Whatever is sent next will find the same. The kernel reports from destructors, out of which nothing may be
        // thrown.
    }
}

MessageRedirection::MessageRedirection(const Handle(KernelMessages) & messages)
    : m_messages(messages)
{
    const Handle(Message_Messenger)& messenger = Message::DefaultMessenger();
    messenger->RemovePrinters(STANDARD_TYPE(Message_Printer));
    messenger->AddPrinter(m_messages);
}

MessageRedirection::~MessageRedirection()
{
    Message::DefaultMessenger()->RemovePrinter(m_messages);
}
