#include "vrx_api/mechanical/pmi_object.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcPMIObject::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("id"), identity(EIdSpace::None, self.m_id));
    fields.always(WIDE("hidden"), self.m_hidden);
}
template struct Described<ExcPMIObject>;

void ExcPMIObject::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIObject");
}

void ExcPMIObject::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
