#include "looks/palette_colors.h"

#include "common/color_index.h"
#include "looks/scene_nodes.h"

namespace palette_colors
{

namespace
{

vrx::ExcColor nearest(const vrx::ExcColor& color)
{
    if (!color.hasRGB())
    {
        return color;
    }
    vrx::ExcColor result = color_index::color(color_index::nearest(color));
    result.setHasAlpha(color.hasAlpha());
    result[vrx::ExcColor::ChannelAlpha] = color[vrx::ExcColor::ChannelAlpha];
    return result;
}

template <class References>
void applyTo(const References& references)
{
    for (const auto& reference : references)
    {
        reference->setColor(nearest(reference->color()));
    }
}

} // namespace

void apply(const vrx::ExcProductStructure& structure)
{
    applyTo(structure.rootBlockReferences());
    for (const auto& block : structure.blocks())
    {
        applyTo(block->blockReferences());
    }
}

void apply(const vrx::ExcVisualizationData& scene)
{
    scene_nodes::visit(scene, [](const vrx::ExcVisuNode& node) {
        if (node.attributes() && node.attributes()->color())
        {
            node.attributes()->setColor(std::make_shared<vrx::ExcColor>(nearest(*node.attributes()->color())));
        }
        if (node.mesh())
        {
            for (const auto& face : node.mesh()->faces())
            {
                face->setColor(nearest(face->color()));
            }
        }
    });
}

} // namespace palette_colors
