#include "mechanical/stated_figures.h"

#include "mechanical/mechanical_data.h"
#include "mechanical/shape_links.h"
#include "mp/narrow.h"
#include "structure/file_properties.h"

#include <memory>
#include <string>

void addStatedFigures(MechanicalData& data, const FileProperties& properties, ShapeLinks& links)
{
    for (const auto& [solid, figures] : properties.ofSolids())
    {
        const TopoDS_Shape shape = links.shapeOf(solid);
        for (const ShapeLinks::Link& link : shape.IsNull() ? std::vector<ShapeLinks::Link>() : links.everywhere(shape))
        {
            if (const auto number = links.bodyNumber(shape, link.block))
            {
                const auto parameters = std::make_shared<vrx::ExcMiscNoteParameters>();
                parameters->setName(mp::toWide("b" + std::to_string(*number)));
                parameters->properties() = figures;
                data.misc(link.block).addNoteParameters(parameters);
            }
        }
    }
}
