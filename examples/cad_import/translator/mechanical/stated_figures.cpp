#include "mechanical/stated_figures.h"

#include "mechanical/mechanical_data.h"
#include "mechanical/shape_links.h"
#include "mp/narrow.h"
#include "reading/cad_model.h"
#include "structure/product_blocks.h"
#include "structure/product_structure_builder.h"

#include <memory>
#include <optional>
#include <string>

void addStatedFigures(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& blocks,
                      ShapeLinks& links)
{
    if (blocks.properties().ofSolids().empty())
    {
        return;
    }
    const ProductBlocks products(model, blocks);
    for (const auto& [solid, stated] : blocks.properties().ofSolids())
    {
        const TopoDS_Shape shape = links.shapeOf(solid);
        const std::uint64_t block = products.of(model.records->find(stated.aspect));
        const auto number = shape.IsNull() || block == 0 ? std::nullopt : links.bodyNumber(shape, block);
        if (number)
        {
            const auto parameters = std::make_shared<vrx::ExcMiscNoteParameters>();
            parameters->setName(mp::toWide("b" + std::to_string(*number)));
            parameters->properties() = stated.figures;
            data.misc(block).addNoteParameters(parameters);
        }
    }
}
