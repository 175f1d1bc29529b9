#include "looks/visualization_builder.h"

#include "looks/block_scene.h"
#include "looks/palette_colors.h"
#include "looks/placed_scene.h"
#include "looks/scene_nodes.h"
#include "pmi/annotation_scene.h"
#include "pmi/drawn_pmi.h"
#include "reading/import_settings.h"
#include "structure/product_structure_builder.h"

VisualizationBuilder::VisualizationBuilder(const ImportSettings& settings, const vrx::ExcProductStructure& structure,
                                           const ProductStructureBuilder& blocks,
                                           const std::vector<ShapeLinks::Link>& hidden)
    : m_settings(settings)
    , m_structure(structure)
    , m_blocks(blocks)
{
    for (const ShapeLinks::Link& link : hidden)
    {
        m_hidden.insert(link.shape);
    }
}

std::shared_ptr<vrx::ExcRootAssemblyVisualization>
VisualizationBuilder::root(const DrawnPmi& drawn, const std::map<int, mp::wstring>& mechanicalIds) const
{
    if (!m_settings.drawnPmi)
    {
        return nullptr;
    }
    const auto data = std::make_shared<vrx::ExcVisualizationData>();
    data->setUnits(m_structure.units());
    addSavedViews(*data, drawn.views, drawn.places);
    if (const auto annotations = annotationScene(drawn.annotations, drawn.places, mechanicalIds))
    {
        const auto rootNode = scene_nodes::make(vrx::ExcVisuNode::EType::ROOT);
        rootNode->addChildNode(annotations);
        data->addSceneRootNode(rootNode);
    }
    placeScene(*data, m_blocks.frame());
    if (data->views().empty() && data->sceneRootNodes().empty())
    {
        return nullptr;
    }
    auto visualization = std::make_shared<vrx::ExcRootAssemblyVisualization>();
    visualization->setVisualizationData(data);
    return visualization;
}

std::shared_ptr<vrx::ExcBlockVisualization> VisualizationBuilder::block(const vrx::ExcBlock& block) const
{
    const auto scene = blockScene(m_blocks.labelOf(block.id()), m_blocks.shapeOf(block),
                                  m_settings.hiddenParts == vrx::EHiddenPartsMode::ImportShow, m_hidden);
    if (!scene)
    {
        return nullptr;
    }
    const auto data = std::make_shared<vrx::ExcVisualizationData>();
    data->setUnits(m_structure.units());
    data->addSceneRootNode(scene);
    scaleScene(*data, m_blocks.frame());
    palette_colors::apply(*data, m_settings.colors);
    auto visualization = std::make_shared<vrx::ExcBlockVisualization>();
    visualization->setBlockId(block.id());
    visualization->setVisualizationData(data);
    return visualization;
}
