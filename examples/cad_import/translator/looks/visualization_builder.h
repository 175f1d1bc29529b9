#pragma once

#include "vrx_api/vrx_api_exchange_structure.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <memory>

class ProductStructureBuilder;
struct CadModel;
struct ImportSettings;

/// Makes the scenes of a model: one for the root with what belongs to the product as a whole, one for each part.
class VisualizationBuilder
{
public:
    /// The structure is the one that `blocks` has built.
    VisualizationBuilder(const CadModel& model, const ImportSettings& settings,
                         const vrx::ExcProductStructure& structure, const ProductStructureBuilder& blocks);

    /// Saved views and drawn annotations, as far as they were read and are wanted. Null when there is neither.
    std::shared_ptr<vrx::ExcRootAssemblyVisualization> root() const;

    /// Null for a block that has nothing to show: an assembly, or a part without a shape.
    std::shared_ptr<vrx::ExcBlockVisualization> block(const vrx::ExcBlock& block) const;

private:
    const CadModel& m_model;
    const ImportSettings& m_settings;
    const vrx::ExcProductStructure& m_structure;
    const ProductStructureBuilder& m_blocks;
};
