#pragma once

#include <cstdint>

namespace vrx
{

/// What kind of geometry a scene item shows.
enum class EVisuGeometryType : std::int32_t
{
    Unknown = 0,
    Part = 1,
    Construction = 2,
    FtaConstructed = 3,
};

} // namespace vrx
