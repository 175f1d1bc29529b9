#include "vrx_api/exchange/progress.h"

#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

const wstring ExcProgress::s_objectName = WIDE("exc_progress");
static const StaticExchangeObject<ExcProgress> s_prototype;

template <class Self, class Fields>
void ExcProgress::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("progress"), self.m_progress);
    fields.always(WIDE("progress_max"), self.m_progressMax);
    fields.always(WIDE("stage"), self.m_stage);
}
template struct Described<ExcProgress>;
template struct Listed<ExcProgress>;

// Like the other status objects: no trace line, and not a word about a wrong kind.
void ExcProgress::readObject(const JsonValue& value)
{
    if (isObject(value, kSilently))
    {
        readMembers(*this, value);
    }
}

void ExcProgress::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

const wstring& ExcProgress::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> ExcProgress::clone() const
{
    return std::make_shared<ExcProgress>();
}

bool ExcProgress::operator==(const ExcProgress& other) const
{
    return m_progress == other.m_progress && m_progressMax == other.m_progressMax && m_stage == other.m_stage;
}

} // namespace vrx
