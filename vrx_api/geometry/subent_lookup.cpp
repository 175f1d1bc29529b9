#include "vrx_api/common/subent_id.h"
#include "vrx_api/geometry/kernel.h"

namespace vrx
{

namespace
{

using ListParts = outcome (*)(ENTITY*, ENTITY_LIST&, PAT_NEXT_TYPE, AcisOptions*);

// The place in the kernel's list; -1, for a part that the body does not list, becomes all ones.
std::uint64_t placeAmong(ListParts list, ENTITY* body, ENTITY* part)
{
    ENTITY_LIST parts;
    list(body, parts, static_cast<PAT_NEXT_TYPE>(0), nullptr);
    return static_cast<std::uint64_t>(std::int64_t{parts.lookup(part)});
}

} // namespace

ENTITY* ExcSubentId::getOwnerBody(ENTITY* entity)
{
    if (entity == nullptr)
    {
        return nullptr;
    }
    ENTITY* owner = entity->owner();
    while (owner != nullptr && !is_BODY(owner))
    {
        owner = owner->owner();
    }
    return owner;
}

void ExcSubentId::fillSubentId(ExcSubentId& target, ENTITY* entity)
{
    target = ExcSubentId();
    if (entity == nullptr)
    {
        return;
    }
    if (is_BODY(entity))
    {
        target.setType(EType::Body);
        return;
    }
    ENTITY* const body = getOwnerBody(entity);
    if (body == nullptr)
    {
        return;
    }
    if (is_FACE(entity))
    {
        target = ExcSubentId(EType::Face, placeAmong(api_get_faces, body, entity));
    }
    else if (is_EDGE(entity))
    {
        target = ExcSubentId(EType::Edge, placeAmong(api_get_edges, body, entity));
    }
    else if (is_VERTEX(entity))
    {
        target = ExcSubentId(EType::Vertex, placeAmong(api_get_vertices, body, entity));
    }
}

} // namespace vrx
