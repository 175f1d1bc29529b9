#include "vrx_api/structure/block.h"

#include "vrx_api/common/unit_tables.h"
#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcBlock::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("id"), identity(EIdSpace::Block, self.m_id));
    fields.filled(WIDE("name"), self.m_name);
    fields.filled(WIDE("storage_name"), self.m_storageName);
    fields.always(WIDE("world_orientation"), self.m_worldOrientation);
    fields.filled(WIDE("misc_data"), self.m_miscData);
    fields.always(WIDE("is_part"), self.m_part);
    fields.filled(WIDE("block_references"), self.m_blockReferences);
}
template struct Described<ExcBlock>;

void ExcBlock::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcBlock");
}

void ExcBlock::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcBlock::addBlockReference(const std::shared_ptr<ExcBlockReference>& reference)
{
    add(m_blockReferences, reference, "ExcBlock: attempt to add null Block Reference object.");
}

} // namespace vrx
