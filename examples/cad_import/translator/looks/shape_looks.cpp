#include "looks/shape_looks.h"

#include "kernel/occt_text.h"
#include "structure/block_content.h"

#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

namespace
{

ShapeLooks::Look lookOf(const TDF_Label& label)
{
    ShapeLooks::Look look;
    Handle(TDataStd_Name) name;
    if (label.FindAttribute(TDataStd_Name::GetID(), name))
    {
        look.name = occt_text::wide(name->Get());
    }
    look.color = BlockContent::colorOf(label);
    look.hidden = !XCAFDoc_DocumentTool::ColorTool(label)->IsVisible(label);
    return look;
}

} // namespace

ShapeLooks::ShapeLooks(const TDF_Label& product)
{
    add(product, TopLoc_Location());
    addComponents(product, TopLoc_Location());
}

void ShapeLooks::add(const TDF_Label& label, const TopLoc_Location& place)
{
    m_looks.Bind(XCAFDoc_ShapeTool::GetShape(label).Moved(place), lookOf(label));
    TDF_LabelSequence parts;
    XCAFDoc_ShapeTool::GetSubShapes(label, parts);
    for (const TDF_Label& part : parts)
    {
        m_looks.Bind(XCAFDoc_ShapeTool::GetShape(part).Moved(place), lookOf(part));
    }
}

// A product with several shapes is an assembly of them in XDE. What a component says of its shape goes first.
void ShapeLooks::addComponents(const TDF_Label& label, const TopLoc_Location& place)
{
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(label, components, false);
    for (const TDF_Label& component : components)
    {
        TDF_Label shape;
        if (!XCAFDoc_ShapeTool::GetReferredShape(component, shape))
        {
            continue;
        }
        const TopLoc_Location within = place * XCAFDoc_ShapeTool::GetLocation(component);
        add(shape, within);
        Look& look = m_looks.ChangeFind(XCAFDoc_ShapeTool::GetShape(shape).Moved(within));
        const Look own = lookOf(component);
        look.color = own.color.hasRGB() ? own.color : look.color;
        look.hidden = look.hidden || own.hidden;
        addComponents(shape, within);
    }
}
