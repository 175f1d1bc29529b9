#include "vrx_api/command/result.h"

#include "vrx_api/command/required.h"
#include "vrx_api/json/fields.h"
#include "vrx_api/json/json_text_io.h"
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

static constexpr Key kCode = WIDE("code");
static constexpr Key kMessage = WIDE("message");
static constexpr Key kFinished = WIDE("is_finished");

void Result::writeObject(mp::wostream& stream) const
{
    JsonDocument document(rapidjson::kObjectType);
    FieldWriter fields(document, document.GetAllocator());
    fields.always(kCode, m_code);
    fields.filled(kMessage, m_message);
    fields.always(kFinished, m_finished);
    JsonTextIO::write(stream, document, true);
}

void Result::readObject(mp::wistream& stream)
{
    JsonDocument document;
    readMessage(stream, document);
    m_code = enumValueOr(requiredText(document, kCode, "Json document has no result code."), ECode::Unknown);
    FieldReader fields(document);
    fields.filled(kMessage, m_message);
    fields.always(kFinished, m_finished);
}

} // namespace vrx
