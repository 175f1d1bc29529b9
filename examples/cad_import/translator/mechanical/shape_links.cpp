#include "mechanical/shape_links.h"

#include "bodies/block_bodies.h"
#include "kernel/loose_shells.h"
#include "mechanical/entities.h"
#include "mp/narrow.h"
#include "reading/aspect_items.h"
#include "reading/cad_model.h"
#include "structure/product_structure_builder.h"

#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <set>
#include <string>
#include <utility>

namespace
{

using EType = vrx::ExcSubentId::EType;

const std::pair<TopAbs_ShapeEnum, EType> kParts[] = {
    {TopAbs_FACE, EType::Face},
    {TopAbs_EDGE, EType::Edge},
    {TopAbs_VERTEX, EType::Vertex},
};

// The shape aspect that stands behind another by a relationship: a part behind a whole and a source behind what is
// derived, but a feature behind its datum and behind a target on it. None by a dimension between the two.
StepRecord behind(const StepRecord& aspect, const StepRecord& relationship, const char* type)
{
    if (relationship.is("DIMENSIONAL_LOCATION"))
    {
        return {};
    }
    const StepRecord relating = relationship.as(type).next(2);
    const StepRecord related = relationship.as(type).next(3);
    const bool isReversed = related.is("DATUM") || relationship.is("FEATURE_FOR_DATUM_TARGET_RELATIONSHIP");
    return aspect == (isReversed ? related : relating) ? (isReversed ? relating : related) : StepRecord();
}

// With all that stands behind it, each aspect before what is behind it.
void gather(const StepRecord& first, std::vector<StepRecord>& all, std::set<int>& known)
{
    std::vector<StepRecord> waiting = {first}; // the last one goes first
    while (!waiting.empty())
    {
        const StepRecord aspect = waiting.back();
        waiting.pop_back();
        if (!aspect || !known.insert(aspect.id()).second)
        {
            continue;
        }
        all.push_back(aspect);
        std::vector<StepRecord> next;
        for (const char* type : {"SHAPE_ASPECT_RELATIONSHIP", "SHAPE_ASPECT_DERIVING_RELATIONSHIP",
                                 "FEATURE_FOR_DATUM_TARGET_RELATIONSHIP"})
        {
            for (const StepRecord& relationship : aspect.users(type))
            {
                next.push_back(behind(aspect, relationship, type));
            }
        }
        waiting.insert(waiting.end(), next.rbegin(), next.rend());
    }
}

std::shared_ptr<vrx::ExcEntity> entityAt(std::uint64_t bodyId, const vrx::ExcSubentId& part)
{
    return bodyId != 0 ? entities::ofBody(bodyId, part)
                       : entities::ofScene(mp::toWide(static_cast<char>(part.type()) + std::to_string(part.index())));
}

} // namespace

void ShapeLinks::Places::add(const TopoDS_TShape* shape, const Place& place)
{
    const auto [known, isNew] = first.insert({shape, place});
    // The parts of bodies are parts of the block too.
    if (!isNew && (place.bodyId != 0 || known->second.bodyId == 0))
    {
        others[shape].push_back(place);
    }
}

ShapeLinks::ShapeLinks(const CadModel& model, const ProductStructureBuilder& blocks, const BlockBodies& bodies)
    : m_model(model)
    , m_blocks(blocks)
    , m_bodies(bodies)
{
}

std::vector<std::shared_ptr<vrx::ExcEntity>> ShapeLinks::of(const std::vector<StepRecord>& aspects, std::uint64_t block)
{
    std::vector<std::shared_ptr<vrx::ExcEntity>> links;
    std::set<const TopoDS_TShape*> known;
    for (const TopoDS_Shape& shape : shapes(aspects))
    {
        const std::shared_ptr<vrx::ExcEntity> link = entity(shape, block);
        if (link && known.insert(shape.TShape().get()).second)
        {
            links.push_back(link);
        }
    }
    return links;
}

std::shared_ptr<vrx::ExcEntity> ShapeLinks::entity(const TopoDS_Shape& shape, std::uint64_t block)
{
    const Places& places = placesIn(block);
    const auto found = places.first.find(shape.TShape().get());
    return found != places.first.end() ? entityAt(found->second.bodyId, found->second.part) : nullptr;
}

std::optional<std::size_t> ShapeLinks::bodyNumber(const Link& link) const
{
    const bool isBody =
        link.entity->type() == vrx::ExcEntity::EType::Fsp && link.entity->fsp()->subentId().type() == EType::Body;
    const std::vector<std::uint64_t>& ids = m_bodies.ids(link.block);
    const auto id = isBody ? std::find(ids.begin(), ids.end(), link.entity->fsp()->bodyId()) : ids.end();
    return id != ids.end() ? std::optional(static_cast<std::size_t>(id - ids.begin())) : std::nullopt;
}

const std::vector<std::uint64_t>& ShapeLinks::bodyIds(std::uint64_t block) const
{
    return m_bodies.ids(block);
}

std::vector<ShapeLinks::Link> ShapeLinks::everywhere(const TopoDS_Shape& shape)
{
    findHolders();
    std::vector<Link> links;
    const auto found = m_holders.find(shape.TShape().get());
    if (found != m_holders.end())
    {
        for (const std::uint64_t block : found->second)
        {
            const TopoDS_TShape* const known = shape.TShape().get();
            const Places& places = placesIn(block);
            links.push_back({block, entity(shape, block), known, 0});
            const auto others = places.others.find(known);
            for (std::size_t i = 0; others != places.others.end() && i < others->second.size(); ++i)
            {
                const Place& place = others->second[i];
                links.push_back({block, entityAt(place.bodyId, place.part), known, i + 1});
            }
        }
    }
    else if (shape.ShapeType() < TopAbs_EDGE && shape.ShapeType() != TopAbs_FACE)
    {
        for (TopoDS_Iterator part(shape); part.More(); part.Next())
        {
            const std::vector<Link> more = everywhere(part.Value());
            links.insert(links.end(), more.begin(), more.end());
        }
    }
    return links;
}

void ShapeLinks::findHolders()
{
    if (!m_holders.empty())
    {
        return;
    }
    for (std::uint64_t block = 1; block <= m_blocks.blockCount(); ++block)
    {
        if (m_blocks.shapeOf(block).IsNull())
        {
            continue;
        }
        for (const auto& [shape, place] : placesIn(block).first)
        {
            m_holders[shape].push_back(block);
        }
    }
}

std::vector<TopoDS_Face> ShapeLinks::faces(const std::vector<StepRecord>& aspects) const
{
    std::vector<TopoDS_Face> faces;
    for (const TopoDS_Shape& shape : shapes(aspects))
    {
        if (shape.ShapeType() == TopAbs_FACE)
        {
            faces.push_back(TopoDS::Face(shape));
        }
    }
    return faces;
}

// What the kernel has made of the geometry. It makes more than one face of some.
std::vector<TopoDS_Shape> ShapeLinks::shapes(const std::vector<StepRecord>& aspects) const
{
    std::vector<StepRecord> all;
    std::set<int> known;
    for (const StepRecord& aspect : aspects)
    {
        gather(aspect, all, known);
    }
    std::vector<TopoDS_Shape> shapes;
    for (const StepRecord& aspect : all)
    {
        for (const int item : aspect_items::of(aspect))
        {
            const TopoDS_Shape shape = shapeOf(item);
            if (!shape.IsNull() && shape.ShapeType() >= TopAbs_FACE)
            {
                shapes.push_back(shape);
            }
            else if (!shape.IsNull())
            {
                for (TopExp_Explorer explorer(shape, TopAbs_FACE); explorer.More(); explorer.Next())
                {
                    shapes.push_back(explorer.Current());
                }
            }
        }
    }
    return shapes;
}

TopoDS_Shape ShapeLinks::shapeOf(int item) const
{
    return shapeOf(m_model.records->entity(item));
}

TopoDS_Shape ShapeLinks::shapeOf(const Handle(Standard_Transient) & entity) const
{
    const Handle(Transfer_TransientProcess) transfer =
        m_model.step->Reader().WS()->TransferReader()->TransientProcess();
    return entity.IsNull() ? TopoDS_Shape() : TransferBRep::ShapeResult(transfer, entity);
}

const ShapeLinks::Places& ShapeLinks::placesIn(std::uint64_t block)
{
    const auto known = m_places.find(block);
    if (known != m_places.end())
    {
        return known->second;
    }
    Places& places = m_places[block];
    addPlaces(block, places);
    if (places.first.empty()) // an assembly, whose annotations tell of its components
    {
        for (std::uint64_t id = 1; id <= m_blocks.blockCount(); ++id)
        {
            addPlaces(id, places);
        }
    }
    return places;
}

void ShapeLinks::addPlaces(std::uint64_t block, Places& places) const
{
    const TopoDS_Shape shape = m_blocks.shapeOf(block);
    if (shape.IsNull())
    {
        return;
    }
    const auto addParts = [&places](const TopoDS_Shape& whole, std::uint64_t bodyId) {
        for (const auto& [kind, type] : kParts)
        {
            TopTools_IndexedMapOfShape parts;
            TopExp::MapShapes(whole, kind, parts);
            for (int i = 1; i <= parts.Extent(); ++i)
            {
                places.add(parts(i).TShape().get(), {bodyId, {type, static_cast<std::uint64_t>(i - 1)}});
            }
        }
    };
    TopTools_IndexedMapOfShape solids;
    TopExp::MapShapes(shape, TopAbs_SOLID, solids);
    const std::vector<std::uint64_t>& ids = m_bodies.ids(block);
    for (std::size_t i = 0; i < ids.size(); ++i)
    {
        const TopoDS_Shape& solid = solids(static_cast<int>(i) + 1);
        places.add(solid.TShape().get(), {ids[i], {EType::Body, 0}});
        addParts(solid, ids[i]);
    }
    addParts(shape, 0);
    const TopTools_IndexedMapOfShape shells = looseShells(shape);
    for (int i = 1; i <= shells.Extent(); ++i)
    {
        const auto number = static_cast<std::uint64_t>(solids.Extent() + i - 1);
        places.add(shells(i).TShape().get(), {0, {EType::Body, number}});
    }
}
