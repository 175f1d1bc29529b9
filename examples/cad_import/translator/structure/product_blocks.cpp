#include "structure/product_blocks.h"

#include "reading/cad_model.h"
#include "structure/component_labels.h"
#include "structure/product_structure_builder.h"

ProductBlocks::ProductBlocks(const CadModel& model, const ProductStructureBuilder& blocks)
{
    const Handle(StepData_StepModel) entities = model.step->ChangeReader().StepModel();
    for (std::uint64_t id = 1; id <= blocks.blockCount(); ++id)
    {
        const Handle(StepBasic_ProductDefinition) product = blocks.productOf(blocks.labelOf(id));
        if (!product.IsNull())
        {
            m_blocks.insert({entities->IdentLabel(product), id});
        }
    }
    // The blocks at the top come first.
    const bool oneRoot = component_labels::roots(model.document).size() == 1;
    m_top = oneRoot && blocks.blockCount() > 0 ? 1 : 0;
}

std::uint64_t ProductBlocks::of(const StepRecord& record) const
{
    StepRecord product = record;
    if (!product.is("PRODUCT_DEFINITION_SHAPE") && !product.is("PRODUCT_DEFINITION") &&
        !product.is("PRODUCT_DEFINITION_WITH_ASSOCIATED_DOCUMENTS"))
    {
        product = product.as("SHAPE_ASPECT").next(2);
    }
    if (product.is("PRODUCT_DEFINITION_SHAPE"))
    {
        product = product.next(2);
    }
    const auto found = m_blocks.find(product.id());
    return found != m_blocks.end() ? found->second : 0;
}
