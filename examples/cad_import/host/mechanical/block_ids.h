#pragma once

#include "received_bodies.h"

#include <cstdint>
#include <vector>

/// The mechanical ids of what entities name in a block, as in its scene. What is in another block, or in no body that
/// came, is left out.
inline std::vector<mp::wstring> idsInBlock(const Entities& entities, std::uint64_t block, const ReceivedBodies& bodies)
{
    std::vector<mp::wstring> ids;
    for (const std::shared_ptr<vrx::ExcEntity>& entity : entities)
    {
        const BodyLink link = bodies.link(*entity);
        const bool isHere = entity->fsp() ? link.resolved && link.block == block : !link.mechanicalId.empty();
        if (isHere)
        {
            ids.push_back(link.mechanicalId);
        }
    }
    return ids;
}
