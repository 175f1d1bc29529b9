#pragma once

#include <NCollection_DataMap.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelMapHasher.hxx>

struct CadModel;

/// Which entity of the STEP file a label of the XDE document was made from; none in the model of another format.
class StepLabels
{
public:
    explicit StepLabels(const CadModel& model);

    /// The product definition behind a label, or null. XDE makes labels of its own too: a product with several shapes
    /// becomes an assembly of them.
    Handle(StepBasic_ProductDefinition) productOf(const TDF_Label& label) const;

    /// The usage behind a component's label, or null.
    Handle(StepRepr_NextAssemblyUsageOccurrence) usageOf(const TDF_Label& component) const;

private:
    NCollection_DataMap<TDF_Label, Handle(StepBasic_ProductDefinition), TDF_LabelMapHasher> m_products;
    NCollection_DataMap<TDF_Label, Handle(StepRepr_NextAssemblyUsageOccurrence), TDF_LabelMapHasher> m_usages;
};
