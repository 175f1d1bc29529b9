#pragma once

#include "vrx_api/vrx_api_exchange_visualization.h"

#include <string>

/// The scene's content as the page takes it; what does not fit together, such as an index without a vertex, is left
/// out.
namespace scene_json
{

/// All meshes and wires of a block's scene in one set of arrays: an object.
std::string shape(const vrx::ExcVisualizationData& scene);

/// The drawn annotations: an array.
std::string annotations(const vrx::ExcVisualizationData& scene);

/// The saved views: an array. A capture tells more than a view of the same name and replaces it.
std::string views(const vrx::ExcVisualizationData& scene);

} // namespace scene_json
