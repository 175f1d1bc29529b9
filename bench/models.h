#pragma once

#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/json/json_fwd.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace bench
{

/// What is sent, under a name for the table.
struct Model
{
    const char* name;
    std::function<std::shared_ptr<vrx::IExchangeObject>()> make;

    /// Turns what is written into what can be read, for a class whose two ends differ.
    void (*makeReadable)(vrx::JsonValue& tree) = nullptr;
};

/// 20,000 block references in 400 sub-assemblies of 1,600 parts, each named and placed, every fifth coloured.
std::shared_ptr<vrx::IExchangeObject> makeStructure();

/// What is one polygon of a scene: a triangle, or all triangles of a face.
enum class EPolygon
{
    Triangle,
    Face
};

/// Faces of 5,000 vertices and 10,000 triangles each: patches of a slightly noisy surface.
std::shared_ptr<vrx::IExchangeObject> makeScene(EPolygon polygon, std::size_t faces);

/// The PMI of a large casting: 60 views of 150 dimensions, 100 feature control frames, 20 datums and 50 notes each,
/// linked to faces.
std::shared_ptr<vrx::IExchangeObject> makePmi();

/// The views of that PMI are written under a key that their reader does not know: gives them the reader's.
void makePmiReadable(vrx::JsonValue& tree);

/// A product of one part.
std::shared_ptr<vrx::IExchangeObject> makeTiny();

} // namespace bench
