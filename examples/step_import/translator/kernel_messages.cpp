#include "kernel_messages.h"

#include "host_channel.h"

#include <TCollection_AsciiString.hxx>

void KernelMessages::send(const TCollection_AsciiString& text, Message_Gravity gravity) const
{
    TCollection_AsciiString line = text;
    line.LeftAdjust();
    line.RightAdjust();
    if (line.IsEmpty() || gravity < Message_Info)
    {
        return;
    }
    m_channel.log(line.ToCString());
    if (gravity >= Message_Fail)
    {
        m_lastFailure = line.ToCString();
    }
}
