#include "vrx_api/mechanical/mapping_data.h"

#include "vrx_api/json/elements.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

using EntityPair = std::pair<std::shared_ptr<ExcEntity>, std::shared_ptr<ExcEntity>>;

static constexpr auto describePair = [](auto& pair, auto& fields) {
    fields.filled(WIDE("imported"), pair.first);
    fields.readOnly(WIDE("original"), pair.second);
};

static JsonValue encode(const EntityPair& pair, JsonAllocator& allocator)
{
    return encode(record(pair, describePair), allocator);
}

void ExcMappingData::readObject(const JsonValue& value)
{
    kolt::trace();
    if (!isArray(value, "ExcMappingData"))
    {
        return;
    }
    m_mapping.reserve(m_mapping.size() + value.Size());
    for (const JsonValue& element : value.GetArray())
    {
        EntityPair pair;
        if (decode(element, record(pair, describePair)))
        {
            m_mapping.push_back(std::move(pair));
        }
        else
        {
            kolt::log(kolt::kError, "ExcMappingData JSON array should have objects as items.");
        }
    }
}

void ExcMappingData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeElements(m_mapping, value, allocator);
}

void ExcMappingData::add(const std::shared_ptr<ExcEntity>& imported, const std::shared_ptr<ExcEntity>& original)
{
    if (imported == nullptr || original == nullptr)
    {
        kolt::log(kolt::kWarning, "ExcMappingData: attempt to add null Entity object or null Original Entity object.");
        return;
    }
    m_mapping.emplace_back(imported, original);
}

} // namespace vrx
