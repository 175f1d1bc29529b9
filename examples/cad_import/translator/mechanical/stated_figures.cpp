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
#include <utility>

namespace
{

// A point is one of the product; where the product is no block of its own, it stands elsewhere.
vrx::ExcMiscData figuresIn(std::uint64_t block, const vrx::ExcMiscData& figures, std::uint64_t ofProduct)
{
    vrx::ExcMiscData result;
    for (const vrx::ExcMiscProperty& property : figures.properties())
    {
        if (block == ofProduct || property.type() != vrx::ExcMiscProperty::EType::String)
        {
            result.emplaceProperty(property);
        }
    }
    return result;
}

} // namespace

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
        const std::uint64_t product = products.of(model.records->find(stated.aspect));
        for (const ShapeLinks::Link& link : shape.IsNull() ? std::vector<ShapeLinks::Link>() : links.everywhere(shape))
        {
            const auto number = product == 0 || product == link.block ? links.bodyNumber(link) : std::nullopt;
            vrx::ExcMiscData figures = number ? figuresIn(link.block, stated.figures, product) : vrx::ExcMiscData();
            if (!figures.properties().empty())
            {
                const auto parameters = std::make_shared<vrx::ExcMiscNoteParameters>();
                parameters->setName(mp::toWide("b" + std::to_string(*number)));
                parameters->properties() = std::move(figures);
                data.misc(link.block).addNoteParameters(parameters);
            }
        }
    }
}
