#include "vrx_api/mechanical/entity_data.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcEntityData::describe(Self& self, Fields& fields)
{
    fields.whole(self.m_data);
}
template struct Described<ExcEntityData>;

void ExcEntityData::readObject(const JsonValue& value)
{
    readArray(*this, value, "ExcEntityData");
}

void ExcEntityData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeWhole(*this, value, allocator);
}

void ExcEntityData::addData(const std::shared_ptr<ExcTopologicalEntityInformation>& information)
{
    add(m_data, information, "ExcEntityData: attempt to add null Topological Entity Information Data object.");
}

} // namespace vrx
