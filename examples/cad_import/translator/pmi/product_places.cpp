#include "pmi/product_places.h"

#include "kernel/occt_transformation.h"
#include "structure/component_labels.h"
#include "structure/product_structure_builder.h"

#include <XCAFDoc_ShapeTool.hxx>

#include <utility>
#include <vector>

ProductPlaces::ProductPlaces(const Handle(TDocStd_Document) & document, const ProductStructureBuilder& blocks)
{
    std::vector<std::pair<TDF_Label, TopLoc_Location>> waiting;
    const auto add = [&](const TDF_Label& component, const TopLoc_Location& above) {
        const TDF_Label shape = component_labels::referred(component);
        if (!m_places.IsBound(shape))
        {
            waiting.emplace_back(shape, above * XCAFDoc_ShapeTool::GetLocation(component));
        }
    };
    for (const TDF_Label& root : component_labels::roots(document))
    {
        if (!blocks.isLeftOut(root))
        {
            add(root, TopLoc_Location());
        }
    }
    while (!waiting.empty())
    {
        const auto [label, place] = waiting.back();
        waiting.pop_back();
        if (!m_places.Bind(label, place))
        {
            continue; // it stands elsewhere already, and all below it too
        }
        for (const TDF_Label& component : component_labels::of(label))
        {
            if (blocks.isPart(label) || !blocks.isLeftOut(component))
            {
                add(component, place);
            }
        }
    }
}

const TopLoc_Location* ProductPlaces::find(const TDF_Label& shape) const
{
    for (TDF_Label label = shape; !label.IsNull() && !label.IsRoot(); label = label.Father())
    {
        if (const TopLoc_Location* const place = m_places.Seek(label))
        {
            return place;
        }
    }
    return nullptr;
}

std::shared_ptr<vrx::ExcTransformation> ProductPlaces::firstPlaceOf(const TDF_Label& shape) const
{
    const TopLoc_Location* const place = find(shape);
    return place == nullptr || place->IsIdentity()
               ? nullptr
               : std::make_shared<vrx::ExcTransformation>(occt_transformation::of(*place));
}
