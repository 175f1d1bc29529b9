#include "mechanical/shape_links.h"

#include "bodies/block_bodies.h"
#include "mp/narrow.h"
#include "reading/cad_model.h"
#include "structure/product_structure_builder.h"

#include <StepRepr_RepresentationItem.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

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

void gatherReferences(const StepParameter& parameter, std::vector<int>& all)
{
    if (parameter.reference != 0)
    {
        all.push_back(parameter.reference);
    }
    for (const StepParameter& element : parameter.list)
    {
        gatherReferences(element, all);
    }
}

// The geometry that an aspect itself names.
std::vector<int> itemsOf(const StepRecord& aspect)
{
    std::vector<int> items;
    for (const char* type : {"GEOMETRIC_ITEM_SPECIFIC_USAGE", "ITEM_IDENTIFIED_REPRESENTATION_USAGE"})
    {
        for (const StepRecord& usage : aspect.users(type))
        {
            gatherReferences(usage[4], items);
        }
    }
    return items;
}

std::shared_ptr<vrx::ExcEntity> bodyEntity(std::uint64_t bodyId, const vrx::ExcSubentId& part)
{
    auto entity = std::make_shared<vrx::ExcEntity>();
    entity->setType(vrx::ExcEntity::EType::Fsp);
    entity->setFsp(std::make_shared<vrx::ExcFullSubentPath>(bodyId, part));
    return entity;
}

std::shared_ptr<vrx::ExcEntity> sceneEntity(const vrx::ExcSubentId& part)
{
    auto entity = std::make_shared<vrx::ExcEntity>();
    entity->setType(vrx::ExcEntity::EType::Visu);
    entity->setId(mp::toWide(static_cast<char>(part.type()) + std::to_string(part.index())));
    return entity;
}

} // namespace

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
    const auto found = places.find(shape.TShape().get());
    if (found == places.end())
    {
        return nullptr;
    }
    const Place& place = found->second;
    return place.bodyId != 0 ? bodyEntity(place.bodyId, place.part) : sceneEntity(place.part);
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
        for (const int item : itemsOf(aspect))
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
    const auto entity = m_model.records->entity<StepRepr_RepresentationItem>(item);
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
    if (places.empty()) // an assembly, whose annotations tell of its components
    {
        for (int i = 1; i <= m_blocks.blocks().Extent(); ++i)
        {
            addPlaces(static_cast<std::uint64_t>(i), places);
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
                places.insert({parts(i).TShape().get(), {bodyId, {type, static_cast<std::uint64_t>(i - 1)}}});
            }
        }
    };
    TopTools_IndexedMapOfShape solids;
    TopExp::MapShapes(shape, TopAbs_SOLID, solids);
    const std::vector<std::uint64_t>& ids = m_bodies.ids(block);
    for (std::size_t i = 0; i < ids.size(); ++i)
    {
        const TopoDS_Shape& solid = solids(static_cast<int>(i) + 1);
        places.insert({solid.TShape().get(), {ids[i], {EType::Body, 0}}});
        addParts(solid, ids[i]);
    }
    addParts(shape, 0);
}
