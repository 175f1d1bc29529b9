#include "features/features.h"

#include "features/block_features.h"
#include "features/hole_finder.h"
#include "mechanical/mechanical_data.h"
#include "structure/product_structure_builder.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

void addFeatures(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& builder, ShapeLinks& links)
{
    (void)model;
    for (std::uint64_t block = 1; block <= builder.blockCount(); ++block)
    {
        const TopoDS_Shape shape = builder.shapeOf(block);
        TopTools_IndexedMapOfShape solids;
        if (!shape.IsNull())
        {
            TopExp::MapShapes(shape, TopAbs_SOLID, solids);
        }
        const BlockFeatures features(block, builder.frame(), links);
        for (int i = 1; i <= solids.Extent(); ++i)
        {
            const SolidHoles found = holesOf(solids(i));
            for (const Hole& hole : found.holes)
            {
                features.addHole(data.manufacturing(block), hole);
            }
            for (const HolePattern& pattern : patternsOf(found.holes, found.axes))
            {
                features.addPattern(data.manufacturing(block), pattern, found.holes);
            }
        }
    }
}
