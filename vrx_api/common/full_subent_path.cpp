#include "vrx_api/common/full_subent_path.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcFullSubentPath::describe(Self& self, Fields& fields)
{
    fields.filled(WIDE("block_references"), reference(EIdSpace::BlockReference, valid(self.m_refs)));
    fields.always(WIDE("body_id"), reference(EIdSpace::Body, self.m_bodyId));
    fields.always(WIDE("subent_id"), self.m_subentId);
}
template struct Described<ExcFullSubentPath>;

void ExcFullSubentPath::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcFullSubentPath");
}

void ExcFullSubentPath::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
