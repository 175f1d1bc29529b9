#include "visualization_builder.h"

#include "annotation_scene.h"
#include "block_scene.h"
#include "product_places.h"
#include "saved_views.h"
#include "scene_nodes.h"
#include "step_reader.h"

VisualizationBuilder::VisualizationBuilder(const StepModel& model, const vrx::ExcProductStructure& structure,
                                           const TDF_LabelIndexedMap& blocks)
    : m_model(model)
    , m_structure(structure)
    , m_blocks(blocks)
{
}

std::shared_ptr<vrx::ExcRootAssemblyVisualization> VisualizationBuilder::root() const
{
    const auto data = std::make_shared<vrx::ExcVisualizationData>();
    data->setUnits(m_structure.units());
    addSavedViews(*data, m_model.document);
    if (const auto annotations = annotationScene(m_model.document, ProductPlaces(m_model.document)))
    {
        const auto rootNode = scene_nodes::make(vrx::ExcVisuNode::EType::ROOT);
        rootNode->addChildNode(annotations);
        data->addSceneRootNode(rootNode);
    }
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
    const auto scene = block.isPart() ? blockScene(m_blocks(static_cast<int>(block.id()))) : nullptr;
    if (!scene)
    {
        return nullptr;
    }
    const auto data = std::make_shared<vrx::ExcVisualizationData>();
    data->setUnits(m_structure.units());
    data->addSceneRootNode(scene);
    auto visualization = std::make_shared<vrx::ExcBlockVisualization>();
    visualization->setBlockId(block.id());
    visualization->setVisualizationData(data);
    return visualization;
}
