#include "vrx_api/exchange/message_object.h"

#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

const wstring ExcMessage::s_objectName = WIDE("exc_message");
static const StaticExchangeObject<ExcMessage> s_messagePrototype;

const wstring ExcLog::s_objectName = WIDE("exc_log");
static const StaticExchangeObject<ExcLog> s_logPrototype;

template <class Self, class Fields>
void ExcMessageBase::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("message"), self.m_message);
}
template struct Described<ExcMessageBase>;
template struct Listed<ExcMessage, ExcMessageBase>;
template struct Listed<ExcLog, ExcMessageBase>;

// The status objects travel often: they write no trace line, and pass over a wrong kind without a word.
void ExcMessageBase::readObject(const JsonValue& value)
{
    if (isObject(value, kSilently))
    {
        readMembers(*this, value);
    }
}

void ExcMessageBase::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

const wstring& ExcMessage::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> ExcMessage::clone() const
{
    return std::make_shared<ExcMessage>();
}

const wstring& ExcLog::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> ExcLog::clone() const
{
    return std::make_shared<ExcLog>();
}

} // namespace vrx
