#include "looks/shape_looks.h"

#include "kernel/occt_text.h"
#include "structure/block_content.h"
#include "structure/component_labels.h"

#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TopoDS_Iterator.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

namespace
{

// A look, with what it does not say taken from the one above.
ShapeLooks::Look within(const ShapeLooks::Look& above, ShapeLooks::Look look)
{
    look.color = look.color.hasRGB() ? look.color : above.color;
    look.hidden = look.hidden || above.hidden;
    return look;
}

} // namespace

// The product's own look is not that of its shapes: it gives way to the look of a reference.
ShapeLooks::ShapeLooks(const TDF_Label& product, bool showHidden, const HiddenShapes& hidden)
    : m_showHidden(showHidden)
{
    add(product, TopLoc_Location(), lookOf(product), Look());
    addComponents(product, TopLoc_Location(), Look());
    if (!hidden.empty())
    {
        hide(XCAFDoc_ShapeTool::GetShape(product), Look(), hidden);
    }
}

// Bodies, and what is outside of them, look like the group that holds them where they have no look of their own.
void ShapeLooks::hide(const TopoDS_Shape& shape, const Look& above, const HiddenShapes& hidden)
{
    const Look* const own = m_looks.Seek(shape);
    Look look = own != nullptr ? *own : above;
    if (hidden.count(shape.TShape().get()) > 0)
    {
        look.hidden = true;
        m_looks.Bind(shape, look);
    }
    for (TopoDS_Iterator part(shape); shape.ShapeType() < TopAbs_SOLID && part.More(); part.Next())
    {
        hide(part.Value(), look, hidden);
    }
}

ShapeLooks::Look ShapeLooks::lookOf(const TDF_Label& label) const
{
    Look look;
    Handle(TDataStd_Name) name;
    if (label.FindAttribute(TDataStd_Name::GetID(), name))
    {
        look.name = occt_text::wide(name->Get());
    }
    look.color = BlockContent::colorOf(label);
    look.hidden = !m_showHidden && !XCAFDoc_DocumentTool::ColorTool(label)->IsVisible(label);
    return look;
}

void ShapeLooks::add(const TDF_Label& label, const TopLoc_Location& place, const Look& look, const Look& ofBodies)
{
    m_looks.Bind(XCAFDoc_ShapeTool::GetShape(label).Moved(place), look);
    TDF_LabelSequence parts;
    XCAFDoc_ShapeTool::GetSubShapes(label, parts);
    for (const TDF_Label& part : parts)
    {
        const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(part);
        const bool isBody = !shape.IsNull() && shape.ShapeType() <= TopAbs_SHELL;
        m_looks.Bind(shape.Moved(place), isBody ? within(ofBodies, lookOf(part)) : lookOf(part));
    }
}

// A product with several shapes is an assembly of them in XDE. What a component says of its shape goes first, and what
// stands above it last.
void ShapeLooks::addComponents(const TDF_Label& label, const TopLoc_Location& place, const Look& above)
{
    for (const TDF_Label& component : component_labels::of(label))
    {
        const TDF_Label shape = component_labels::referred(component);
        const TopLoc_Location here = place * XCAFDoc_ShapeTool::GetLocation(component);
        const Look own = lookOf(shape);
        Look look = within(above, within(own, lookOf(component)));
        look.name = own.name;
        add(shape, here, look, look);
        addComponents(shape, here, look);
    }
}
