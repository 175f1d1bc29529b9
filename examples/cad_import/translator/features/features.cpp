#include "features/features.h"

#include "features/block_features.h"
#include "features/hole_finder.h"
#include "mechanical/mechanical_data.h"
#include "mechanical/shape_links.h"
#include "reading/cad_model.h"
#include "structure/product_blocks.h"
#include "structure/product_structure_builder.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

namespace
{

struct BodyHoles
{
    BodyFaces faces;
    std::vector<Hole> holes;
    std::map<std::uint64_t, std::size_t> holeOf; // by the number of a wall
};

using HolesOfBodies = std::map<std::uint64_t, BodyHoles>; // by the id of the body

/// The faces of a thread in one hole, or on one body without a hole.
struct ThreadPlace
{
    std::uint64_t block = 0;
    const BodyHoles* body = nullptr;
    std::optional<std::size_t> hole;
    TopoDS_Face shape; // of one of them
    std::vector<std::shared_ptr<vrx::ExcEntity>> faces;
};

void addHoles(const BlockFeatures& features, const SolidHoles& found, const BodyFaces& faces)
{
    for (const Hole& hole : found.holes)
    {
        features.addHole(hole, faces);
    }
    for (const HolePattern& pattern : patternsOf(found.holes, found.axes))
    {
        features.addPattern(pattern, found.holes, faces);
    }
}

BodyHoles bodyHoles(BodyFaces faces, std::vector<Hole> holes)
{
    BodyHoles body{std::move(faces), std::move(holes), {}};
    for (std::size_t i = 0; i < body.holes.size(); ++i)
    {
        for (const TopoDS_Face& wall : body.holes[i].walls)
        {
            if (const std::shared_ptr<vrx::ExcEntity> entity = body.faces.entity(wall))
            {
                body.holeOf.insert({entity->fsp()->subentId().index(), i});
            }
        }
    }
    return body;
}

void findHole(const vrx::ExcFullSubentPath& face, const HolesOfBodies& bodies, ThreadPlace& place)
{
    const auto body = bodies.find(face.bodyId());
    if (body == bodies.end())
    {
        return;
    }
    place.body = &body->second;
    const auto hole = body->second.holeOf.find(face.subentId().index());
    if (hole != body->second.holeOf.end())
    {
        place.hole = hole->second;
    }
}

// Wherever the faces stand: in the block that the thread tells of, or in all when that has no shape of its own.
std::vector<ThreadPlace> placesOf(const StepThread& thread, std::uint64_t block, ShapeLinks& links,
                                  const HolesOfBodies& bodies)
{
    std::vector<ThreadPlace> places;
    std::map<std::tuple<std::uint64_t, std::uint64_t, std::optional<std::size_t>>, std::size_t> known;
    std::set<const TopoDS_TShape*> faces;
    for (const TopoDS_Face& face : links.faces({thread.aspect}))
    {
        if (!faces.insert(face.TShape().get()).second)
        {
            continue;
        }
        for (const ShapeLinks::Link& link : links.everywhere(face))
        {
            if (!link.entity || (block != 0 && link.block != block))
            {
                continue;
            }
            const auto& path = link.entity->fsp();
            ThreadPlace place{link.block, nullptr, std::nullopt, face, {}};
            if (path && thread.isInternal)
            {
                findHole(*path, bodies, place);
            }
            const auto key = std::make_tuple(link.block, path ? path->bodyId() : 0, place.hole);
            const auto [at, isNew] = known.insert({key, places.size()});
            if (isNew)
            {
                places.push_back(std::move(place));
            }
            places[at->second].faces.push_back(link.entity);
        }
    }
    return places;
}

void addThreads(MechanicalData& data, const std::vector<StepThread>& threads, const CadModel& model,
                const ProductStructureBuilder& builder, ShapeLinks& links, const HolesOfBodies& bodies)
{
    const ProductBlocks blocks(model, builder);
    for (const StepThread& thread : threads)
    {
        const std::uint64_t stated = blocks.of(thread.aspect);
        const std::uint64_t block = stated != 0 && !builder.shapeOf(stated).IsNull() ? stated : 0;
        for (const ThreadPlace& place : placesOf(thread, block, links, bodies))
        {
            const BlockFeatures features(data.manufacturing(place.block), builder.frame());
            if (place.hole)
            {
                const TappedHole tapped{place.body->holes[*place.hole], place.body->faces};
                features.addThread(thread, place.faces, place.shape, &tapped);
            }
            else
            {
                features.addThread(thread, place.faces, place.shape, nullptr);
            }
        }
    }
}

} // namespace

void addFeatures(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& builder, ShapeLinks& links)
{
    const std::vector<StepThread> threads = model.records ? threadsOf(*model.records) : std::vector<StepThread>();
    HolesOfBodies bodies;
    for (std::uint64_t block = 1; block <= builder.blockCount(); ++block)
    {
        const std::vector<std::uint64_t>& ids = links.bodyIds(block);
        TopTools_IndexedMapOfShape solids;
        if (!ids.empty())
        {
            TopExp::MapShapes(builder.shapeOf(block), TopAbs_SOLID, solids);
        }
        for (std::size_t i = 0; i < ids.size(); ++i)
        {
            const TopoDS_Shape& solid = solids(static_cast<int>(i) + 1);
            SolidHoles found = holesOf(solid);
            if (found.holes.empty())
            {
                continue;
            }
            BodyFaces faces(ids[i], solid);
            addHoles(BlockFeatures(data.manufacturing(block), builder.frame()), found, faces);
            if (!threads.empty())
            {
                bodies.emplace(ids[i], bodyHoles(std::move(faces), std::move(found.holes)));
            }
        }
    }
    if (!threads.empty())
    {
        addThreads(data, threads, model, builder, links, bodies);
    }
}
