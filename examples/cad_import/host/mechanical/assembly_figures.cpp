#include "mechanical/assembly_figures.h"

#include "product_tree.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace
{

using Vector = std::array<double, 3>;

// A sum of bodies that can be added to.
struct Sum
{
    void add(const BodyFigures& figures)
    {
        area += figures.area;
        volume += figures.volume;
        for (std::size_t i = 0; i < 3; ++i)
        {
            moment[i] += figures.volume * figures.centroid[i];
        }
    }

    BodyFigures figures() const
    {
        BodyFigures figures;
        figures.area = area;
        figures.volume = volume;
        for (std::size_t i = 0; i < 3; ++i)
        {
            figures.centroid[i] = moment[i] / volume;
        }
        return figures;
    }

    double area = 0;
    double volume = 0;
    Vector moment{};
    bool isWhole = true; // nothing is missing
};

// The same where a reference places it, which keeps its size.
BodyFigures placed(BodyFigures figures, const vrx::ExcTransformation& place)
{
    const Vector centroid = figures.centroid;
    for (std::size_t i = 0; i < 3; ++i)
    {
        figures.centroid[i] = place.translation()[i];
        for (std::size_t j = 0; j < 3; ++j)
        {
            figures.centroid[i] += place.affine()[i][j] * centroid[j];
        }
    }
    return figures;
}

} // namespace

BodyFigures sumOf(const std::vector<ReceivedBodies::Body>& bodies)
{
    Sum sum;
    for (const ReceivedBodies::Body& body : bodies)
    {
        sum.add(body.figures);
    }
    return sum.figures();
}

std::map<std::uint64_t, BodyFigures> assemblyFigures(const vrx::ExcProductStructure& structure,
                                                     const ReceivedBodies& bodies)
{
    std::map<std::uint64_t, BodyFigures> figures;
    const std::vector<ProductTreeNode> tree = productTree(structure, ESiblings::Collapsed);
    // From the last line to the first, so that what is below a line comes before it: the sums of what is at each depth.
    std::vector<Sum> sums;
    for (auto node = tree.rbegin(); node != tree.rend(); ++node)
    {
        sums.resize(std::max(sums.size(), node->depth + 2));
        Sum own = sums[node->depth + 1];
        sums[node->depth + 1] = {};
        own.isWhole = own.isWhole && node->state == ProductTreeNode::EState::Normal;
        if (own.isWhole && node->block->isPart())
        {
            own = {};
            for (const ReceivedBodies::Body& body : bodies.of(node->block->id()))
            {
                own.add(body.figures);
            }
        }
        else if (own.isWhole)
        {
            figures.emplace(node->block->id(), own.figures());
        }
        Sum& above = sums[node->depth];
        above.isWhole = above.isWhole && own.isWhole;
        for (const vrx::ExcBlockReference* const reference : node->references)
        {
            if (!reference->isSuppressed() && own.volume != 0)
            {
                above.add(placed(own.figures(), reference->transformation()));
            }
        }
    }
    return figures;
}
