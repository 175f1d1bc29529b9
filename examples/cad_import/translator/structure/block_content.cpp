#include "structure/block_content.h"

#include "common/property_names.h"
#include "kernel/loose_shells.h"
#include "structure/misc_properties.h"

#include <Quantity_ColorRGBA.hxx>
#include <TDF_LabelSequence.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace
{

std::uint16_t channel(double value)
{
    return static_cast<std::uint16_t>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
}

bool isBody(const TDF_Label& label)
{
    const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(label);
    return !shape.IsNull() && shape.ShapeType() <= TopAbs_SHELL;
}

} // namespace

BlockContent::BlockContent(const TDF_Label& label, std::vector<TDF_Label> shapes)
    : m_labels{label}
{
    m_labels.insert(m_labels.end(), shapes.begin(), shapes.end());
    const std::vector<TDF_Label> holders = m_labels;
    for (const TDF_Label& holder : holders)
    {
        TDF_LabelSequence parts;
        XCAFDoc_ShapeTool::GetSubShapes(holder, parts);
        std::copy_if(parts.begin(), parts.end(), std::back_inserter(m_labels), isBody);
    }
}

vrx::ExcColor BlockContent::colorOf(const TDF_Label& label)
{
    const Handle(XCAFDoc_ColorTool) colors = XCAFDoc_DocumentTool::ColorTool(label);
    for (const XCAFDoc_ColorType type : {XCAFDoc_ColorSurf, XCAFDoc_ColorGen, XCAFDoc_ColorCurv})
    {
        Quantity_ColorRGBA color;
        if (!colors->GetColor(label, type, color))
        {
            continue;
        }
        double red = 0;
        double green = 0;
        double blue = 0;
        color.GetRGB().Values(red, green, blue, Quantity_TOC_sRGB);
        const auto alpha = static_cast<double>(color.Alpha());
        return alpha < 1 ? vrx::ExcColor(channel(red), channel(green), channel(blue), channel(alpha))
                         : vrx::ExcColor(channel(red), channel(green), channel(blue));
    }
    return {};
}

vrx::ExcColor BlockContent::color() const
{
    for (const TDF_Label& label : m_labels)
    {
        vrx::ExcColor color = colorOf(label);
        if (color.hasRGB())
        {
            return color;
        }
    }
    return {};
}

void BlockContent::addCounts(vrx::ExcMiscData& data) const
{
    const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(m_labels.front());
    if (shape.IsNull())
    {
        return;
    }
    TopTools_IndexedMapOfShape solids;
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_SOLID, solids);
    TopExp::MapShapes(shape, TopAbs_FACE, faces);
    add(data, property_names::kSolids, solids.Extent());
    add(data, property_names::kShells, looseShells(shape).Extent());
    add(data, property_names::kFaces, faces.Extent());
}
