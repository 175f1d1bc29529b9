#include "vrx_api/mechanical/misc_display_set.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcMiscDisplaySet::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("active"), self.m_active);
    fields.filled(WIDE("entities"), self.m_entities);
}
template struct Described<ExcMiscDisplaySet>;

void ExcMiscDisplaySet::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMiscDisplaySet");
}

void ExcMiscDisplaySet::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcMiscDisplaySet::addEntity(const std::shared_ptr<ExcEntity>& entity)
{
    add(m_entities, entity, "ExcMiscDisplaySet: attempt to add null Entity object.");
}

} // namespace vrx
