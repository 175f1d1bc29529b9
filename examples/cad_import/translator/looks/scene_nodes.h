#pragma once

#include "vrx_api/vrx_api_exchange_visualization.h"

#include <memory>
#include <vector>

/// Small helpers for trees of scene nodes.
namespace scene_nodes
{

inline std::shared_ptr<vrx::ExcVisuNode> make(vrx::ExcVisuNode::EType type)
{
    auto node = std::make_shared<vrx::ExcVisuNode>();
    node->setType(type);
    return node;
}

inline std::shared_ptr<vrx::ExcVisuNode> addTo(vrx::ExcVisuNode& parent, vrx::ExcVisuNode::EType type)
{
    std::shared_ptr<vrx::ExcVisuNode> node = make(type);
    parent.addChildNode(node);
    return node;
}

/// Calls `take` for each node of a scene.
template <class Take>
void visit(const vrx::ExcVisualizationData& scene, const Take& take)
{
    std::vector<std::shared_ptr<vrx::ExcVisuNode>> waiting = scene.sceneRootNodes();
    while (!waiting.empty())
    {
        const std::shared_ptr<vrx::ExcVisuNode> node = waiting.back();
        waiting.pop_back();
        take(*node);
        const std::vector<std::shared_ptr<vrx::ExcVisuNode>> children = node->childNodes();
        waiting.insert(waiting.end(), children.begin(), children.end());
    }
}

} // namespace scene_nodes
