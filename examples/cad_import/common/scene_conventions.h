#pragma once

#include <cstdint>

/// What the scene's open numbers and ids mean between this translator and its hosts.
///
/// Ids of a block's scene count within the block's shape, from 0, in the order in which the kernel maps the shape:
/// "f12" is the face at position 12, "e7" the edge at position 7, "b0" the first body. Bodies are the solids, in the
/// order of the block's bodies, then the shells outside of them, then what is left. Coordinates come in threes, normals
/// one for each vertex, all in the units of the scene and in the coordinates of the block.
///
/// The mechanical id of a face or an edge of a body is "0/f3" or "0/e7": the position of the body among those of the
/// block, and the index that an `ExcSubentId` has in that body. What belongs to no body has its id there too.
///
/// The node of a drawn annotation holds its strokes as PMI, and what is filled, such as letters, as a mesh without ids.
namespace scene_conventions
{

/// The only type of a face's polygons: triangles, three indices of vertices for each, counter-clockwise seen from
/// outside. A face has all its triangles in one polygon.
inline const std::int32_t kTriangles = 1;

// Cameras: the orthographic zoom factor is the height of the picture in the scene's units, the perspective view angle
// the one from its bottom to its top in degrees; 0 in either says nothing.

} // namespace scene_conventions
