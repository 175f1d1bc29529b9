#include "product_tree.h"

#include <algorithm>
#include <memory>
#include <set>
#include <stdexcept>

namespace
{

using References = std::vector<std::shared_ptr<vrx::ExcBlockReference>>;

const std::size_t kMaxLines = 10 * 1000 * 1000;

bool sameColor(const vrx::ExcColor& a, const vrx::ExcColor& b)
{
    if (a.hasRGB() != b.hasRGB() || a.hasAlpha() != b.hasAlpha())
    {
        return false;
    }
    for (const auto channel : {vrx::ExcColor::ChannelRed, vrx::ExcColor::ChannelGreen, vrx::ExcColor::ChannelBlue,
                               vrx::ExcColor::ChannelAlpha})
    {
        if (a[channel] != b[channel])
        {
            return false;
        }
    }
    return true;
}

bool looksAlike(const vrx::ExcBlockReference& a, const vrx::ExcBlockReference& b)
{
    return a.blockId() == b.blockId() && a.isHidden() == b.isHidden() && a.isSuppressed() == b.isSuppressed() &&
           sameColor(a.color(), b.color());
}

std::vector<ProductTreeNode> level(const vrx::ExcProductStructure& structure, const References& references,
                                   std::size_t depth, ESiblings siblings)
{
    std::vector<ProductTreeNode> nodes;
    for (const std::shared_ptr<vrx::ExcBlockReference>& reference : references)
    {
        const auto alike = std::find_if(nodes.begin(), nodes.end(), [&](const ProductTreeNode& node) {
            return looksAlike(*node.references.front(), *reference);
        });
        if (siblings == ESiblings::Collapsed && alike != nodes.end())
        {
            alike->references.push_back(reference.get());
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
            throw std::length_error("the product tree has more than ten million lines");
        }
    }
    return lines;
}
