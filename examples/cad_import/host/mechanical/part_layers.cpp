#include "mechanical/part_layers.h"

#include "mechanical/block_ids.h"
#include "wire_name.h"

#include <algorithm>
#include <set>

namespace
{

// Not a vertex, such as "v4" or "0/v4".
bool isDrawn(const mp::wstring& id)
{
    const std::size_t slash = id.rfind(WIDE('/'));
    const std::size_t kind = slash == mp::wstring::npos ? 0 : slash + 1;
    return id.compare(kind, 1, WIDE("v")) != 0;
}

bool areHidden(const std::vector<mp::wstring>& entities, const std::set<mp::wstring>& hidden)
{
    return std::any_of(entities.begin(), entities.end(), isDrawn) &&
           std::all_of(entities.begin(), entities.end(),
                       [&hidden](const mp::wstring& id) { return !isDrawn(id) || hidden.count(id) != 0; });
}

} // namespace

std::vector<PartEntity> partEntities(const vrx::ExcEntityData& data, std::uint64_t block, const ReceivedBodies& bodies)
{
    std::vector<PartEntity> entities;
    for (const std::shared_ptr<vrx::ExcTopologicalEntityInformation>& sent : data.data())
    {
        const std::vector<mp::wstring> ids =
            sent->entity() ? idsInBlock({sent->entity()}, block, bodies) : std::vector<mp::wstring>();
        if (!ids.empty())
        {
            entities.push_back({ids.front(), sent->persistentNames(), sent->name(), sent->isHidden(),
                                wireName(*sent, WIDE("line_type")), sent->lineThickness()});
        }
    }
    return entities;
}

std::vector<PartLayer> partLayers(const vrx::ExcMechanicalMiscData& data, std::uint64_t block,
                                  const ReceivedBodies& bodies, const std::vector<PartEntity>& entities)
{
    std::set<mp::wstring> hidden;
    for (const PartEntity& entity : entities)
    {
        if (entity.isHidden)
        {
            hidden.insert(entity.entity);
        }
    }
    std::vector<PartLayer> layers;
    for (const std::shared_ptr<vrx::ExcMiscLayer>& sent : data.layers())
    {
        const std::vector<mp::wstring> ids = idsInBlock(sent->entities(), block, bodies);
        layers.push_back({sent->id(), sent->name(), ids, areHidden(ids, hidden)});
    }
    return layers;
}
