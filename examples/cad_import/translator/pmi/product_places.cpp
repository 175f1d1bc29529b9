#include "pmi/product_places.h"

#include "reading/cad_model.h"
#include "structure/component_labels.h"
#include "structure/product_structure_builder.h"

#include <TDF_LabelMap.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <utility>
#include <vector>

ProductPlaces::ProductPlaces(const CadModel& model, const ProductStructureBuilder& blocks)
{
    const Handle(StepData_StepModel) entities = model.step->ChangeReader().StepModel();
    TDF_LabelMap known;
    std::vector<Place> waiting;
    // The last one to wait goes first.
    const auto add = [&](const std::vector<TDF_Label>& components, const TopLoc_Location& above, bool whole) {
        for (auto component = components.rbegin(); component != components.rend(); ++component)
        {
            if (whole || !blocks.isLeftOut(*component))
            {
                waiting.push_back(
                    {component_labels::referred(*component), above * XCAFDoc_ShapeTool::GetLocation(*component)});
            }
        }
    };
    add(component_labels::roots(model.document), TopLoc_Location(), false);
    while (!waiting.empty())
    {
        const Place place = waiting.back();
        waiting.pop_back();
        if (!known.Add(place.shape))
        {
            continue; // it stands elsewhere already, and all below it too
        }
        const Handle(StepBasic_ProductDefinition) product = blocks.productOf(place.shape);
        if (!product.IsNull())
        {
            m_places.emplace(entities->IdentLabel(product), place);
        }
        add(component_labels::of(place.shape), place.location, blocks.isPart(place.shape));
    }
}

const ProductPlaces::Place* ProductPlaces::find(const StepRecord& product) const
{
    const auto found = m_places.find(product.id());
    return found != m_places.end() ? &found->second : nullptr;
}
