#include "vrx_api/mechanical/misc_layer.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcMiscLayer::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("id"), identity(EIdSpace::Layer, self.m_id));
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("color"), self.m_color);
    fields.always(WIDE("current"), self.m_current);
    fields.filled(WIDE("entities"), self.m_entities);
}
template struct Described<ExcMiscLayer>;

void ExcMiscLayer::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMiscLayer");
}

void ExcMiscLayer::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcMiscLayer::addEntity(const std::shared_ptr<ExcEntity>& entity)
{
    add(m_entities, entity, "ExcMiscLayer: attempt to add null Entity object.");
}

} // namespace vrx
