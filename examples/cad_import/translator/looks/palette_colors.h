#pragma once

#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_exchange_structure.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

/// Colours as the mode wants them: with `NearestIndex` the nearest colour that has a colour index stands in the place
/// of each, but for its alpha.
namespace palette_colors
{

/// A block reference whose colour has an index then also states it as a property, unless the mode is `Rgb`.
void apply(const vrx::ExcProductStructure& structure, vrx::EColorsMode mode);
void apply(const vrx::ExcVisualizationData& scene, vrx::EColorsMode mode);

} // namespace palette_colors
