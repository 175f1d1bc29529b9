#pragma once

#include "kernel_standin/entity_list.h"

#include <memory>

/// True when an entity of the one type may hold one of the other. What may be held descends from BODY to VERTEX, so
/// that no chain of parts is longer than seven.
bool mayHold(EntityType holder, EntityType part);

/// True when several entities may hold one of this type.
bool mayBeShared(EntityType type);

/// Appends the entity and all that it holds, however deep: an entity before its parts, the parts in their order.
void collect(ENTITY* entity, ENTITY_LIST& all);

/// Destroys the entities of the list, each alone.
void destroyEach(const ENTITY_LIST& all);

struct EntityAccess
{
    /// Ends one entity alone: not its parts, and its holder is not told.
    void operator()(ENTITY* entity) const { delete entity; }

    static void setOwner(ENTITY& part, ENTITY* owner) { part.m_owner = owner; }
    static void appendPart(ENTITY& holder, ENTITY* part) { holder.m_parts.push_back(part); }
};

using LoneEntity = std::unique_ptr<ENTITY, EntityAccess>;
