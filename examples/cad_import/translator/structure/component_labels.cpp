#include "structure/component_labels.h"

#include <TDF_LabelSequence.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

namespace component_labels
{

std::vector<TDF_Label> roots(const Handle(TDocStd_Document) & document)
{
    TDF_LabelSequence sequence;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(sequence);
    return {sequence.begin(), sequence.end()};
}

std::vector<TDF_Label> of(const TDF_Label& product)
{
    TDF_LabelSequence sequence;
    XCAFDoc_ShapeTool::GetComponents(product, sequence, false);
    return {sequence.begin(), sequence.end()};
}

TDF_Label referred(const TDF_Label& component)
{
    TDF_Label label;
    return XCAFDoc_ShapeTool::GetReferredShape(component, label) ? label : component;
}

bool isHidden(const TDF_Label& component)
{
    const Handle(XCAFDoc_ColorTool) colors = XCAFDoc_DocumentTool::ColorTool(component);
    return !colors->IsVisible(component) || !colors->IsVisible(referred(component));
}

} // namespace component_labels
