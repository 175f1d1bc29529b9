#pragma once

#include "vrx_api/vrx_api_exchange_structure.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <TDF_LabelIndexedMap.hxx>

#include <memory>

struct CadModel;

/// Makes the scenes of a model: one for the root with what belongs to the product as a whole, one for each part.
class VisualizationBuilder
{
public:
    /// `blocks` holds the labels of the structure's blocks: the id of a block is the index of its label.
    VisualizationBuilder(const CadModel& model, const vrx::ExcProductStructure& structure,
                         const TDF_LabelIndexedMap& blocks);

    /// Saved views and drawn annotations, as far as they were read. Null when there is neither.
    std::shared_ptr<vrx::ExcRootAssemblyVisualization> root() const;

    /// Null for a block that has nothing to show: an assembly, or a part without a shape.
    std::shared_ptr<vrx::ExcBlockVisualization> block(const vrx::ExcBlock& block) const;

private:
    const CadModel& m_model;
    const vrx::ExcProductStructure& m_structure;
    const TDF_LabelIndexedMap& m_blocks;
};
