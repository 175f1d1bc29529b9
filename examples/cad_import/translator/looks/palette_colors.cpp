#include "looks/palette_colors.h"

#include "common/property_names.h"
#include "looks/color_index.h"
#include "looks/scene_nodes.h"
#include "structure/misc_properties.h"

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

// To each face or edge.
template <class Items>
void applyTo(const Items& items)
{
    for (const auto& item : items)
    {
        item->setColor(nearest(item->color()));
    }
}

template <class References>
void applyTo(const References& references, vrx::EColorsMode mode)
{
    for (const auto& reference : references)
    {
        if (mode == vrx::EColorsMode::NearestIndex)
        {
            reference->setColor(nearest(reference->color()));
        }
        if (const int index = color_index::matching(reference->color()); index != 0)
        {
            add(reference->miscData(), property_names::kColorIndex, index);
        }
    }
}

} // namespace

void apply(const vrx::ExcProductStructure& structure, vrx::EColorsMode mode)
{
    if (mode == vrx::EColorsMode::Rgb)
    {
        return;
    }
    applyTo(structure.rootBlockReferences(), mode);
    for (const auto& block : structure.blocks())
    {
        applyTo(block->blockReferences(), mode);
    }
}

void apply(const vrx::ExcVisualizationData& scene, vrx::EColorsMode mode)
{
    if (mode != vrx::EColorsMode::NearestIndex)
    {
        return;
    }
    scene_nodes::visit(scene, [](const vrx::ExcVisuNode& node) {
        if (node.attributes() && node.attributes()->color())
        {
            node.attributes()->setColor(std::make_shared<vrx::ExcColor>(nearest(*node.attributes()->color())));
        }
        if (node.mesh())
        {
            applyTo(node.mesh()->faces());
            applyTo(node.mesh()->edges());
        }
        if (node.wire())
        {
            applyTo(node.wire()->edges());
        }
    });
}

} // namespace palette_colors
