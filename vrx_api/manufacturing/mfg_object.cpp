#include "vrx_api/manufacturing/mfg_object.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcMfgObject::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("id"), identity(EIdSpace::None, self.m_id));
    fields.filled(WIDE("linked_elements"), self.m_linkedElements);
}
template struct Described<ExcMfgObject>;

void ExcMfgObject::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgObject");
}

void ExcMfgObject::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcMfgObject::addLinkedElement(const std::shared_ptr<ExcEntity>& element)
{
    add(m_linkedElements, element, "ExcMfgObject: attempt to add null Linked Element object.");
}

} // namespace vrx
