#include "structure/product_blocks.h"

#include "reading/cad_model.h"
#include "structure/component_labels.h"
#include "structure/product_structure_builder.h"

namespace
{

bool isProduct(const StepRecord& record)
{
    return record.is("PRODUCT_DEFINITION") || record.is("PRODUCT_DEFINITION_WITH_ASSOCIATED_DOCUMENTS");
}

} // namespace

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
    const auto found = m_blocks.find(productOf(record).id());
    return found != m_blocks.end() ? found->second : 0;
}

StepRecord ProductBlocks::productOf(const StepRecord& record)
{
    StepRecord product = record;
    if (!product.is("PRODUCT_DEFINITION_SHAPE") && !isProduct(product))
    {
        product = product.as("SHAPE_ASPECT").next(2);
    }
    if (product.is("PRODUCT_DEFINITION_SHAPE"))
    {
        product = product.next(2);
    }
    return isProduct(product) ? product : StepRecord();
}
