#pragma once

#include "looks/shape_looks.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <TDF_Label.hxx>
#include <TopoDS_Shape.hxx>

#include <memory>

/// The scene of one part, in the part's own coordinates: ROOT, below it GEOMETRY with MESHES and WIRES, and below these
/// one node for each body of the part's shape, or of what is to be shown of it. With `showHidden` nothing is hidden.
/// Null for a part without a shape.
std::shared_ptr<vrx::ExcVisuNode> blockScene(const TDF_Label& part, const TopoDS_Shape& shape, bool showHidden,
                                             const HiddenShapes& hidden);
