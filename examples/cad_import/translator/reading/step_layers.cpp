#include "reading/step_layers.h"

#include <map>

namespace
{

void addItems(StepLayer& layer, const StepParameter& items, bool areHidden)
{
    if (items.reference != 0)
    {
        layer.items.push_back({items.reference, areHidden});
    }
    for (const StepParameter& item : items.list)
    {
        addItems(layer, item, areHidden);
    }
}

} // namespace

std::vector<StepLayer> stepLayers(const StepRecords& records)
{
    std::vector<StepLayer> layers;
    std::map<mp::wstring, std::size_t> known; // by name
    for (const StepRecord& record : records.all("PRESENTATION_LAYER_ASSIGNMENT"))
    {
        const auto [place, isNew] = known.insert({record.text(0), layers.size()});
        if (isNew)
        {
            layers.push_back({record.text(0), record.text(1), {}});
        }
        addItems(layers[place->second], record[2], !record.users("INVISIBILITY").empty());
    }
    return layers;
}
