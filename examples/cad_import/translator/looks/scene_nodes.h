#pragma once

#include "vrx_api/vrx_api_exchange_visualization.h"

#include <memory>

/// Small helpers for building trees of scene nodes.
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

} // namespace scene_nodes
