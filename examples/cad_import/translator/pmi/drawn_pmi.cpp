#include "pmi/drawn_pmi.h"

#include "pmi/pmi_blocks.h"
#include "reading/cad_model.h"

#include <utility>

std::unique_ptr<DrawnPmi> drawnPmi(const CadModel& model, const ProductStructureBuilder& blocks)
{
    if (!model.records)
    {
        return nullptr;
    }
    const PmiBlocks pmiBlocks(model, blocks);
    ProductPlaces places(model, blocks);
    std::vector<DrawnAnnotation> annotations = drawnAnnotations(model, pmiBlocks);
    std::vector<SavedView> views = savedViews(model, pmiBlocks, places, annotations);
    return std::make_unique<DrawnPmi>(DrawnPmi{std::move(places), std::move(annotations), std::move(views)});
}
