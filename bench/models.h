#pragma once

#include "vrx_api/exchange/exchange_object.h"

#include <memory>

namespace bench
{

/// 20,000 block references in 400 sub-assemblies of 1,600 parts, each named and placed, every fifth coloured.
std::shared_ptr<vrx::IExchangeObject> makeStructure();

/// 200 faces of 5,000 vertices and 10,000 triangles each: patches of a slightly noisy surface.
std::shared_ptr<vrx::IExchangeObject> makeScene();

/// The drawing of a large casting: 60 views of 150 dimensions, 100 feature control frames, 20 datums and 50 notes each,
/// linked to faces.
std::shared_ptr<vrx::IExchangeObject> makeDrawing();

/// A product of one part.
std::shared_ptr<vrx::IExchangeObject> makeTiny();

} // namespace bench
