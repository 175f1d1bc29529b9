#pragma once

#include "vrx_api/vrx_api_exchange_structure.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

/// Puts the nearest colour that has a colour index in the place of each colour. An alpha stays.
namespace palette_colors
{

void apply(const vrx::ExcProductStructure& structure);
void apply(const vrx::ExcVisualizationData& scene);

} // namespace palette_colors
