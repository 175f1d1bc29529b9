#include "bodies/solid_body.h"

#include "kernel_standin/kernel_standin.h"

#include <BinTools.hxx>
#include <NCollection_DataMap.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS_Iterator.hxx>

#include <sstream>
#include <string>

namespace
{

/// Repeats the structure of a solid in entities. What is shared there, is shared here: a shape counts once, however
/// it is turned.
class SolidCopy
{
public:
    explicit SolidCopy(BODY& body) { body.addPart(&m_lump); }

    void copy(const TopoDS_Shape& solid) { addParts(solid, m_lump); }

private:
    void addParts(const TopoDS_Shape& shape, ENTITY& holder)
    {
        for (TopoDS_Iterator parts(shape); parts.More(); parts.Next())
        {
            addPart(parts.Value(), holder);
        }
    }

    void addPart(const TopoDS_Shape& part, ENTITY& holder)
    {
        switch (part.ShapeType())
        {
        case TopAbs_SHELL:
            addOnce<SHELL>(part, holder);
            break;
        case TopAbs_FACE:
            addOnce<FACE>(part, holder);
            break;
        case TopAbs_WIRE:
            addParts(part, added<LOOP>(holder));
            break;
        case TopAbs_EDGE:
            addShared<EDGE>(part, holderOfEdge(holder));
            break;
        case TopAbs_VERTEX:
            addShared<VERTEX>(part, holder.type() == EntityType::Face ? added<LOOP>(holder) : holder);
            break;
        default:
            break;
        }
    }

    // Edges within a face or within the solid lie in no wire.
    static ENTITY& holderOfEdge(ENTITY& holder)
    {
        switch (holder.type())
        {
        case EntityType::Face:
            return added<LOOP>(holder);
        case EntityType::Lump:
            return added<WIRE>(added<SHELL>(holder));
        default:
            return holder;
        }
    }

    template <class Entity>
    static Entity& added(ENTITY& holder)
    {
        auto* const entity = new Entity;
        holder.addPart(entity);
        return *entity;
    }

    template <class Entity>
    void addOnce(const TopoDS_Shape& shape, ENTITY& holder)
    {
        if (!m_known.IsBound(shape))
        {
            auto& entity = added<Entity>(holder);
            m_known.Bind(shape, &entity);
            addParts(shape, entity);
        }
    }

    template <class Entity>
    void addShared(const TopoDS_Shape& shape, ENTITY& holder)
    {
        if (ENTITY* const* const known = m_known.Seek(shape))
        {
            holder.addPart(*known);
        }
        else
        {
            addOnce<Entity>(shape, holder);
        }
    }

    LUMP& m_lump = *new LUMP;
    NCollection_DataMap<TopoDS_Shape, ENTITY*, TopTools_ShapeMapHasher> m_known;
};

} // namespace

void fillBody(BODY& body, const TopoDS_Shape& solid)
{
    SolidCopy(body).copy(solid);

    std::ostringstream stream(std::ios::binary);
    BinTools::Write(solid, stream, false, false, BinTools_FormatVersion_CURRENT);
    const std::string bytes = stream.str();
    body.setPayload({bytes.begin(), bytes.end()});
}
