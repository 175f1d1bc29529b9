#include "vrx_api/mechanical/pmi_leader.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcPMILeader::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("points"), self.m_points);
}
template struct Described<ExcPMILeader>;

void ExcPMILeader::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMILeader");
}

void ExcPMILeader::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
