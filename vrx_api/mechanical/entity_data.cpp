#include "vrx_api/mechanical/entity_data.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/elements.h"

namespace vrx
{

void ExcEntityData::readObject(const JsonValue& value)
{
    readElements(m_data, value, "ExcEntityData");
}

void ExcEntityData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeElements(m_data, value, allocator);
}

void ExcEntityData::addData(const std::shared_ptr<ExcTopologicalEntityInformation>& information)
{
    add(m_data, information, "ExcEntityData: attempt to add null Topological Entity Information Data object.");
}

} // namespace vrx
