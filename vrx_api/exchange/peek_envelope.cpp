#include "vrx_api/exchange/peek_envelope.h"

#include "vrx_api/exchange/envelope_keys.h"
#include "vrx_api/json/json_read.h"
#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/json_value.h"

namespace vrx
{

namespace
{

wstring textUnder(const JsonValue& object, Key key)
{
    const JsonValue* const text = findString(object, key);
    return text == nullptr ? wstring() : wstring(textOf(*text));
}

wstring bufferNameIn(const JsonValue& envelope)
{
    const JsonValue* const data = find(envelope, kEnvelopeData);
    if (data != nullptr && data->IsObject())
    {
        return textUnder(*data, kObjectBufferName);
    }
    const JsonValue* const binary = find(envelope, kEnvelopeBinary);
    return binary != nullptr && binary->IsTrue() ? textUnder(envelope, kEnvelopeData) : wstring();
}

EMessageKind kindOf(const JsonValue& message)
{
    const auto has = [&message](Key key) { return find(message, key) != nullptr; };
    if (has(kEnvelopeName))
    {
        return EMessageKind::Envelope;
    }
    if (has(WIDE("command")))
    {
        return EMessageKind::Command;
    }
    if (has(WIDE("code")))
    {
        return EMessageKind::Result;
    }
    return has(WIDE("name")) && has(WIDE("version")) ? EMessageKind::Info : EMessageKind::Unknown;
}

} // namespace

MessageHead peekEnvelope(const wstring& text)
{
    wstringstream stream(text);
    JsonDocument message;
    JsonTextIO::read(stream, message);
    MessageHead head;
    if (message.IsObject())
    {
        head.kind = kindOf(message);
    }
    if (head.kind == EMessageKind::Envelope)
    {
        head.objectName = textUnder(message, kEnvelopeName);
        head.bufferName = bufferNameIn(message);
    }
    return head;
}

} // namespace vrx
