#include "kernel_standin/api.h"

#include "kernel_standin/call.h"
#include "kernel_standin/topology.h"

// Ends: the chain of parts is seven long at most.
void collect(ENTITY* entity, ENTITY_LIST& all)
{
    const int known = all.count();
    if (all.add(entity) < known)
    {
        return;
    }
    for (ENTITY* const part : entity->parts())
    {
        collect(part, all);
    }
}

void destroyEach(const ENTITY_LIST& all)
{
    for (int i = 0; i < all.count(); ++i)
    {
        const LoneEntity end(all[i]);
    }
}

static outcome listParts(const char* name, ENTITY* entity, bool (*isWanted)(const ENTITY*), ENTITY_LIST& found)
{
    return apiCall(name, [&] {
        if (entity == nullptr)
        {
            raiseError(KernelError::NullArgument, "No entity is given");
        }
        ENTITY_LIST all;
        collect(entity, all);
        for (int i = 0; i < all.count(); ++i)
        {
            if (isWanted(all[i]))
            {
                found.add(all[i]);
            }
        }
    });
}

outcome api_get_faces(ENTITY* entity, ENTITY_LIST& faces, PAT_NEXT_TYPE, AcisOptions*)
{
    return listParts("api_get_faces", entity, is_FACE, faces);
}

outcome api_get_edges(ENTITY* entity, ENTITY_LIST& edges, PAT_NEXT_TYPE, AcisOptions*)
{
    return listParts("api_get_edges", entity, is_EDGE, edges);
}

outcome api_get_vertices(ENTITY* entity, ENTITY_LIST& vertices, PAT_NEXT_TYPE, AcisOptions*)
{
    return listParts("api_get_vertices", entity, is_VERTEX, vertices);
}

outcome api_del_entity(ENTITY* entity)
{
    return apiCall("api_del_entity", [&] {
        if (entity == nullptr)
        {
            return;
        }
        if (entity->owner() != nullptr)
        {
            raiseError(KernelError::BadState, "The entity has an owner");
        }
        ENTITY_LIST all;
        collect(entity, all);
        destroyEach(all);
    });
}
