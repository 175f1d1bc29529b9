#include "vrx_api/structure/block_reference.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcBlockReference::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("guid"), identity(EIdSpace::BlockReference, self.m_guid));
    fields.always(WIDE("persistent_id"), identity(EIdSpace::BlockReference, self.m_persistentId));
    fields.always(WIDE("persistent_name"), self.m_persistentName);
    fields.always(WIDE("block_id"), reference(EIdSpace::Block, self.m_blockId));
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("transformation"), self.m_transformation);
    fields.always(WIDE("color"), self.m_color);
    fields.always(WIDE("hidden"), self.m_hidden);
    fields.always(WIDE("suppressed"), self.m_suppressed);
    fields.filled(WIDE("misc_data"), self.m_miscData);
}
template struct Described<ExcBlockReference>;

void ExcBlockReference::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcBlockReference");
}

void ExcBlockReference::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
