#include "vrx_api/mechanical/mapping_data.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

using EntityPair = std::pair<std::shared_ptr<ExcEntity>, std::shared_ptr<ExcEntity>>;

static constexpr auto describePair = [](auto& pair, auto& fields) {
    fields.filled(WIDE("imported"), pair.first);
    fields.readOnly(WIDE("original"), pair.second);
};

template <class Value>
static bool decode(const Value& value, std::vector<EntityPair>& field)
{
    field.reserve(field.size() + value.template expectedCount<EntityPair>());
    for (const Value element : value.elements())
    {
        EntityPair pair;
        if (decode(element, record(pair, describePair)))
        {
            field.push_back(std::move(pair));
        }
        else
        {
            kolt::log(kolt::kError, "ExcMappingData JSON array should have objects as items.");
        }
    }
    return true;
}

template <class Out>
static void encode(Out& out, const EntityPair& pair)
{
    encode(out, record(pair, describePair));
}

static void outline(Shape& shape, const EntityPair& pair)
{
    outline(shape, record(pair, describePair));
}

template <class Self, class Fields>
void ExcMappingData::describe(Self& self, Fields& fields)
{
    fields.whole(self.m_mapping);
}
template struct Described<ExcMappingData>;

void ExcMappingData::readObject(const JsonValue& value)
{
    readArray(*this, value, "ExcMappingData");
}

void ExcMappingData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeWhole(*this, value, allocator);
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
