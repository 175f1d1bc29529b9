#pragma once

#include "kernel_standin/kernel_standin_export.h"

#include <cstdint>
#include <vector>

/// The numbers stand in saved data.
enum class EntityType : std::uint8_t
{
    Body = 1,
    Lump = 2,
    Shell = 3,
    Face = 4,
    Loop = 5,
    Edge = 6,
    Vertex = 7,
    Wire = 8,
};

/// A piece of a model's topology. It holds parts in an order that lasts; an edge or a vertex may be held by several
/// entities, any other by one. The first that holds an entity is its owner.
/// Entities are made by `new` and end with the entity that stands above them: see `api_del_entity`, `OwnedEntities`.
class KERNEL_STANDIN ENTITY
{
public:
    ENTITY(const ENTITY&) = delete;
    ENTITY& operator=(const ENTITY&) = delete;

    /// Null for an entity that stands alone.
    ENTITY* owner() const { return m_owner; }

    EntityType type() const { return m_type; }
    const std::vector<ENTITY*>& parts() const { return m_parts; }

    /// Throws `acis_exception` for a part that an entity of this type does not hold, or that is held and can't be
    /// shared.
    void addPart(ENTITY* part);

protected:
    explicit ENTITY(EntityType type)
        : m_type(type)
    {
    }
    virtual ~ENTITY();

private:
    friend struct EntityAccess;

    EntityType m_type;
    ENTITY* m_owner = nullptr;
    std::vector<ENTITY*> m_parts;
};

/// Solid, sheet and wire bodies: lumps and wires.
class KERNEL_STANDIN BODY final : public ENTITY
{
public:
    BODY()
        : ENTITY(EntityType::Body)
    {
    }

    /// Bytes that the application hangs on the body; they are saved and restored with it.
    const std::vector<char>& payload() const { return m_payload; }
    void setPayload(std::vector<char> payload) { m_payload.swap(payload); }

private:
    std::vector<char> m_payload;
};

/// One connected piece of a body: shells.
class KERNEL_STANDIN LUMP final : public ENTITY
{
public:
    LUMP()
        : ENTITY(EntityType::Lump)
    {
    }
};

/// Faces and wires that hang together.
class KERNEL_STANDIN SHELL final : public ENTITY
{
public:
    SHELL()
        : ENTITY(EntityType::Shell)
    {
    }
};

/// A piece of surface within its loops.
class KERNEL_STANDIN FACE final : public ENTITY
{
public:
    FACE()
        : ENTITY(EntityType::Face)
    {
    }
};

/// A boundary of a face: edges, or a vertex that stands alone in the face.
class KERNEL_STANDIN LOOP final : public ENTITY
{
public:
    LOOP()
        : ENTITY(EntityType::Loop)
    {
    }
};

/// Edges that bound no face.
class KERNEL_STANDIN WIRE final : public ENTITY
{
public:
    WIRE()
        : ENTITY(EntityType::Wire)
    {
    }
};

/// A piece of curve between its vertices; a closed one holds its vertex twice.
class KERNEL_STANDIN EDGE final : public ENTITY
{
public:
    EDGE()
        : ENTITY(EntityType::Edge)
    {
    }
};

/// A point where edges end.
class KERNEL_STANDIN VERTEX final : public ENTITY
{
public:
    VERTEX()
        : ENTITY(EntityType::Vertex)
    {
    }
};

/// The type tests: false for null.
KERNEL_STANDIN bool is_BODY(const ENTITY* entity);
KERNEL_STANDIN bool is_FACE(const ENTITY* entity);
KERNEL_STANDIN bool is_EDGE(const ENTITY* entity);
KERNEL_STANDIN bool is_VERTEX(const ENTITY* entity);
