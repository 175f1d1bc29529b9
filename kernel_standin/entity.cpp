#include "kernel_standin/entity.h"

#include "kernel_standin/call.h"
#include "kernel_standin/topology.h"

ENTITY::~ENTITY() = default;

void ENTITY::addPart(ENTITY* part)
{
    if (part == nullptr || !mayHold(m_type, part->m_type))
    {
        raiseError(KernelError::BadPart, "An entity of this type does not hold such a part");
    }
    if (part->m_owner != nullptr && !mayBeShared(part->m_type))
    {
        raiseError(KernelError::BadPart, "The part is held by another entity");
    }
    m_parts.push_back(part);
    if (part->m_owner == nullptr)
    {
        part->m_owner = this;
    }
}

bool mayHold(EntityType holder, EntityType part)
{
    switch (holder)
    {
    case EntityType::Body:
        return part == EntityType::Lump || part == EntityType::Wire;
    case EntityType::Lump:
        return part == EntityType::Shell;
    case EntityType::Shell:
        return part == EntityType::Face || part == EntityType::Wire;
    case EntityType::Face:
        return part == EntityType::Loop;
    case EntityType::Loop:
        return part == EntityType::Edge || part == EntityType::Vertex;
    case EntityType::Wire:
        return part == EntityType::Edge;
    case EntityType::Edge:
        return part == EntityType::Vertex;
    case EntityType::Vertex:
        break;
    }
    return false;
}

bool mayBeShared(EntityType type)
{
    return type == EntityType::Edge || type == EntityType::Vertex;
}

static bool isOf(const ENTITY* entity, EntityType type)
{
    return entity != nullptr && entity->type() == type;
}

bool is_BODY(const ENTITY* entity)
{
    return isOf(entity, EntityType::Body);
}

bool is_FACE(const ENTITY* entity)
{
    return isOf(entity, EntityType::Face);
}

bool is_EDGE(const ENTITY* entity)
{
    return isOf(entity, EntityType::Edge);
}

bool is_VERTEX(const ENTITY* entity)
{
    return isOf(entity, EntityType::Vertex);
}
