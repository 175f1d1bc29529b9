#include "structure/product_places.h"

#include "kernel/occt_transformation.h"

#include <TDF_LabelSequence.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <utility>
#include <vector>

ProductPlaces::ProductPlaces(const Handle(TDocStd_Document) & document)
{
    TDF_LabelSequence roots;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(roots);
    std::vector<std::pair<TDF_Label, TopLoc_Location>> waiting;
    for (const TDF_Label& root : roots)
    {
        TDF_Label shape;
        waiting.emplace_back(XCAFDoc_ShapeTool::GetReferredShape(root, shape) ? shape : root,
                             XCAFDoc_ShapeTool::GetLocation(root));
    }
    while (!waiting.empty())
    {
        const auto [label, place] = waiting.back();
        waiting.pop_back();
        if (!m_places.Bind(label, place))
        {
            continue; // it stands elsewhere already, and all below it too
        }
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(label, components, false);
        for (const TDF_Label& component : components)
        {
            TDF_Label shape;
            if (XCAFDoc_ShapeTool::GetReferredShape(component, shape) && !m_places.IsBound(shape))
            {
                waiting.emplace_back(shape, place * XCAFDoc_ShapeTool::GetLocation(component));
            }
        }
    }
}

std::shared_ptr<vrx::ExcTransformation> ProductPlaces::firstPlaceOf(const TDF_Label& shape) const
{
    for (TDF_Label label = shape; !label.IsNull() && !label.IsRoot(); label = label.Father())
    {
        const TopLoc_Location* place = m_places.Seek(label);
        if (place)
        {
            return place->IsIdentity() ? nullptr
                                       : std::make_shared<vrx::ExcTransformation>(occt_transformation::of(*place));
        }
    }
    return nullptr;
}
