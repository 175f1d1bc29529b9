#include "vrx_api/info/thirdparty_core.h"

#include "vrx_api/json/fields.h"
#include "vrx_api/json/kind.h"

namespace vrx
{

template <class Self, class Fields>
void ThirdpartyCore::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("version"), self.m_version);
}
template struct Described<ThirdpartyCore>;
template struct Listed<ThirdpartyCore>;

void ThirdpartyCore::readObject(const JsonValue& value)
{
    kolt::trace();
    requireObject(value, "ThirdpartyCore::readFrom > !jsonObject.IsObject()");
    readMembers(*this, value);
}

void ThirdpartyCore::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

ThirdpartyCore& ThirdpartyCore::setName(const wstring& name)
{
    m_name = name;
    return *this;
}

ThirdpartyCore& ThirdpartyCore::setVersion(const wstring& version)
{
    m_version = version;
    return *this;
}

} // namespace vrx
