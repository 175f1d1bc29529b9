#include "pmi/drawn_pmi.h"

#include "reading/cad_model.h"
#include "structure/product_blocks.h"

#include <utility>

std::unique_ptr<DrawnPmi> drawnPmi(const CadModel& model, const ProductStructureBuilder& blocks)
{
    if (!model.records)
    {
        return nullptr;
    }
    const ProductBlocks productBlocks(model, blocks);
    ProductPlaces places(model, blocks);
    std::vector<DrawnAnnotation> annotations = drawnAnnotations(model, productBlocks);
    std::vector<SavedView> views = savedViews(model, productBlocks, places, annotations);
    return std::make_unique<DrawnPmi>(DrawnPmi{std::move(places), std::move(annotations), std::move(views)});
}
