#include "product_tree.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>

namespace
{

using References = std::vector<std::shared_ptr<vrx::ExcBlockReference>>;

const std::size_t kMaxLines = 1000000;

// Equal for references that look alike: block, colour, hidden, suppressed.
using Look = std::array<std::uint64_t, 4>;

Look look(const vrx::ExcBlockReference& reference)
{
    const vrx::ExcColor& color = reference.color();
    Look look{reference.blockId(), 0, reference.isHidden(), reference.isSuppressed()};
    if (color.hasRGB())
    {
        for (const auto channel : {vrx::ExcColor::ChannelRed, vrx::ExcColor::ChannelGreen, vrx::ExcColor::ChannelBlue,
                                   vrx::ExcColor::ChannelAlpha})
        {
            look[1] = look[1] << 16 | color[channel];
        }
        look[2] |= 2;
    }
    return look;
}

std::vector<ProductTreeNode> level(const vrx::ExcProductStructure& structure, const References& references,
                                   std::size_t depth, ESiblings siblings)
{
    std::vector<ProductTreeNode> nodes;
    std::map<Look, std::size_t> alike;
    for (const std::shared_ptr<vrx::ExcBlockReference>& reference : references)
    {
        const auto [known, isNew] = alike.emplace(look(*reference), nodes.size());
        if (siblings == ESiblings::Collapsed && !isNew)
        {
            nodes[known->second].references.push_back(reference.get());
            continue;
        }
        ProductTreeNode node;
        node.depth = depth;
        node.references.push_back(reference.get());
        node.block = structure.getBlockById(reference->blockId()).get();
        node.state = node.block ? ProductTreeNode::EState::Normal : ProductTreeNode::EState::MissingBlock;
        nodes.push_back(node);
    }
    return nodes;
}

} // namespace

std::vector<ProductTreeNode> productTree(const vrx::ExcProductStructure& structure, ESiblings siblings)
{
    std::vector<ProductTreeNode> lines;
    // Nodes still to come, the next one last, and the blocks above the next one: no recursion, whatever the depth.
    std::vector<ProductTreeNode> waiting = level(structure, structure.rootBlockReferences(), 0, siblings);
    std::reverse(waiting.begin(), waiting.end());
    std::vector<const vrx::ExcBlock*> path;
    std::set<const vrx::ExcBlock*> above;
    while (!waiting.empty())
    {
        ProductTreeNode node = waiting.back();
        waiting.pop_back();
        while (path.size() > node.depth)
        {
            above.erase(path.back());
            path.pop_back();
        }
        if (node.block && above.count(node.block) > 0)
        {
            node.state = ProductTreeNode::EState::Recursion;
        }
        if (node.state == ProductTreeNode::EState::Normal)
        {
            path.push_back(node.block);
            above.insert(node.block);
            const std::vector<ProductTreeNode> children =
                level(structure, node.block->blockReferences(), node.depth + 1, siblings);
            waiting.insert(waiting.end(), children.rbegin(), children.rend());
        }
        lines.push_back(node);
        if (lines.size() + waiting.size() > kMaxLines)
        {
            throw std::length_error("the product tree has more than a million lines");
        }
    }
    return lines;
}
