#pragma once

#include <cstdint>

/// What the scene's open numbers and ids mean between this translator and its hosts.
///
/// Ids of a block's scene count within the block's shape, from 0, in the order in which the kernel maps the shape:
/// "f12" is the face at position 12, "e7" the edge at position 7, "b0" the first body. The mechanical ids are the same,
/// and an `ExcSubentId` of a face or an edge has the same index. Coordinates come in threes, normals one for each
/// vertex, all in the units of the scene and in the coordinates of the block.
namespace scene_conventions
{

/// The only type of a face's polygons: one triangle, three indices of vertices, counter-clockwise seen from outside.
inline const std::int32_t kTriangle = 1;

// Cameras: the orthographic zoom factor is the height of the picture in the scene's units, the perspective view angle
// the one from its bottom to its top in degrees; 0 in either says nothing.

} // namespace scene_conventions
