#include "vrx_api/command/result.h"

#include "vrx_api/json/message.h"

namespace vrx
{

static constexpr EnumName<Result::ECode> kCodes[] = {
    {Result::ECode::Unknown, WIDE("unknown")},         {Result::ECode::Ok, WIDE("ok")},
    {Result::ECode::Warning, WIDE("warning")},         {Result::ECode::Error, WIDE("error")},
    {Result::ECode::Interrupted, WIDE("interrupted")},
};
static constexpr const auto& enumTable(Result::ECode)
{
    return kCodes;
}
static constexpr Result::ECode enumFallback(Result::ECode)
{
    return Result::ECode::Unknown;
}

template <class Self, class Fields>
void Result::describe(Self& self, Fields& fields)
{
    fields.required(WIDE("code"), "Json document has no result code.", self.m_code);
    fields.filled(WIDE("message"), self.m_message);
    fields.always(WIDE("is_finished"), self.m_finished);
}
template struct Described<Result>;
template struct Listed<Result>;

void Result::writeObject(wostream& stream) const
{
    writeMessage(*this, stream);
}

void Result::readObject(wistream& stream)
{
    JsonDocument document;
    readMessage(stream, document);
    readMembers(*this, document);
}

} // namespace vrx
