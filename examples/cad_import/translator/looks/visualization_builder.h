#pragma once

#include "looks/shape_looks.h"
#include "mechanical/shape_links.h"
#include "mp/wide.h"
#include "vrx_api/vrx_api_exchange_structure.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <map>
#include <memory>
#include <vector>

class ProductStructureBuilder;
struct DrawnPmi;
struct ImportSettings;

/// Makes the scenes of a model: one for the root with what belongs to the product as a whole, one for each part.
class VisualizationBuilder
{
public:
    /// The structure is the one that `blocks` has built.
    VisualizationBuilder(const ImportSettings& settings, const vrx::ExcProductStructure& structure,
                         const ProductStructureBuilder& blocks, const std::vector<ShapeLinks::Link>& hidden);

    /// Saved views and drawn annotations with their mechanical ids, by the ids of their records. Null when there is
    /// neither, or when they are not wanted.
    std::shared_ptr<vrx::ExcRootAssemblyVisualization> root(const DrawnPmi& drawn,
                                                            const std::map<int, mp::wstring>& mechanicalIds) const;

    /// Null for a block that has nothing to show: an assembly, or a part without a shape.
    std::shared_ptr<vrx::ExcBlockVisualization> block(const vrx::ExcBlock& block) const;

private:
    const ImportSettings& m_settings;
    const vrx::ExcProductStructure& m_structure;
    const ProductStructureBuilder& m_blocks;
    HiddenShapes m_hidden;
};
