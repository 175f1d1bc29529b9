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

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace
{

using BlockHoles = std::map<std::uint64_t, std::vector<Hole>>;

std::vector<Hole> addHoles(MechanicalData& data, std::uint64_t block, const TopoDS_Shape& shape,
                           const BlockFeatures& features)
{
    TopTools_IndexedMapOfShape solids;
    if (!shape.IsNull())
    {
        TopExp::MapShapes(shape, TopAbs_SOLID, solids);
    }
    std::vector<Hole> all;
    for (int i = 1; i <= solids.Extent(); ++i)
    {
        SolidHoles found = holesOf(solids(i));
        for (const Hole& hole : found.holes)
        {
            features.addHole(data.manufacturing(block), hole);
        }
        for (const HolePattern& pattern : patternsOf(found.holes, found.axes))
        {
            features.addPattern(data.manufacturing(block), pattern, found.holes);
        }
        std::move(found.holes.begin(), found.holes.end(), std::back_inserter(all));
    }
    return all;
}

const Hole* holeWith(const std::vector<TopoDS_Face>& faces, const std::vector<Hole>& holes)
{
    for (const Hole& hole : holes)
    {
        for (const TopoDS_Face& wall : hole.walls)
        {
            if (std::any_of(faces.begin(), faces.end(),
                            [&wall](const TopoDS_Face& face) { return face.IsPartner(wall); }))
            {
                return &hole;
            }
        }
    }
    return nullptr;
}

void addThreads(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& builder, ShapeLinks& links,
                const BlockHoles& holes)
{
    const std::vector<StepThread> threads = threadsOf(*model.records);
    if (threads.empty())
    {
        return;
    }
    const ProductBlocks blocks(model, builder);
    for (const StepThread& thread : threads)
    {
        const std::uint64_t block = blocks.of(thread.aspect);
        std::vector<TopoDS_Face> faces;
        for (const TopoDS_Face& face : links.faces({thread.aspect}))
        {
            if (block != 0 && links.entity(face, block))
            {
                faces.push_back(face);
            }
        }
        if (!faces.empty())
        {
            const auto found = holes.find(block);
            const Hole* const hole =
                thread.isInternal && found != holes.end() ? holeWith(faces, found->second) : nullptr;
            BlockFeatures(block, builder.frame(), links).addThread(data.manufacturing(block), thread, faces, hole);
        }
    }
}

} // namespace

void addFeatures(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& builder, ShapeLinks& links)
{
    BlockHoles holes;
    for (std::uint64_t block = 1; block <= builder.blockCount(); ++block)
    {
        const BlockFeatures features(block, builder.frame(), links);
        std::vector<Hole> found = addHoles(data, block, builder.shapeOf(block), features);
        if (!found.empty())
        {
            holes[block] = std::move(found);
        }
    }
    if (model.records)
    {
        addThreads(data, model, builder, links, holes);
    }
}
