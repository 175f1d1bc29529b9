#pragma once

#include "vrx_api/vrx_api_exchange_structure.h"

#include <cstddef>
#include <vector>

/// A line of the product tree: the references to one block below one parent, all with the same look.
struct ProductTreeNode
{
    enum class EState
    {
        Normal,
        MissingBlock, // the reference names no block
        Recursion,    // the block is one of those that hold it
    };

    std::size_t depth = 0; // 0 for the references at the top
    std::vector<const vrx::ExcBlockReference*> references;
    const vrx::ExcBlock* block = nullptr; // null when it is missing
    EState state = EState::Normal;
};

/// Whether references to one block with one look share a node.
enum class ESiblings
{
    Collapsed,
    Separate,
};

/// The tree in the order of its lines, each node in front of its children. Throws std::length_error for a tree of more
/// than a million lines: a few dozen blocks, each holding the next one twice, would fill the memory. The nodes point
/// into the structure.
std::vector<ProductTreeNode> productTree(const vrx::ExcProductStructure& structure, ESiblings siblings);
