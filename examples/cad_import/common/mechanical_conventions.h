#pragma once

#include "mp/wide.h"

/// What materials, layers, stated figures, holes and threads mean between this translator and its hosts, where the wire
/// leaves it open or loses it. Lengths are in the unit of the product structure, points and directions in the
/// coordinates of the block, angles in degrees. Entities name bodies, faces and edges as those of annotations do; what
/// belongs to no body is named by its mechanical id.
///
/// - A material of the part level holds for all bodies of the block and has no linked elements; any other one names its
///   bodies by them. The units of its properties are products of powers of the four base units.
/// - A layer stands in the data of each block that has something on it, with the same id and name. Its entities are
///   bodies, in all their places in the block, faces, edges, what belongs to no body, and annotations.
/// - Entity data has the names that the file gives faces and edges as their persistent names. What a layer that is
///   switched off in the file hides is hidden there, whole bodies and annotations too.
/// - Figures that the file states of a part for a receiver to check its work with are free properties of its block,
///   under the names that the file gives them. Those of a single body are note parameters of the block, named by
///   the body's mechanical id, such as "b0".
///
/// A hole is all that is cut around one axis from an opening of the body inwards, and closed around it. Its centre is
/// where the axis leaves the body at the opening, its direction leads into the material, and all depths count from the
/// centre. Its diameter is that of its narrowest part, for a taper hole that at the opening. Its depth is that of the
/// whole, for a blind hole to the end of the walls, where a tip begins. A tip angle of 0 is a flat bottom, or that of a
/// ball. Angles are those of whole cones, from side to side. What is not seen from the opening, behind a narrower part,
/// counts for none of these.
///
/// - A hole ends blind, or "up_to_last" when nothing of the body follows on its axis, or "up_to_next" when it opens
///   into a hollow.
/// - Of several steps a counterbore is that at the opening. A chamfer before a counterbore or a counter drill counts
///   for nothing; one before a hole makes it a countersink.
/// - A counter drill's sink diameter is that of the wide end of the cone at the end of its wide part.
/// - The defining geometry of a hole is its own faces: walls, steps and cones, the bottom and the tip. The limiting
///   geometry is the faces around its ends, those of the opening first.
/// - The pattern of a hole feature does not cross. Equal holes in a row or a grid, or evenly on a circle or an arc,
///   have an unclassified feature instead: its linked elements are the defining geometry of all of them, hole by hole,
///   and its pattern's base instance that of the first one.
/// - A thread is a feature of its own whose side faces carry it. Those of an internal thread belong to the hole that is
///   tapped, whose opening and bottom are its top and bottom faces.
namespace mechanical_conventions
{

/// STEP has no threads that its geometry would show. The shape aspects with this name state them here, in a way of the
/// example's own: a property of the same name with the items below, and the faces that carry the thread.
inline const mp::wchar* const kThread = WIDE("thread");
inline const mp::wchar* const kThreadDesignation = WIDE("designation"); // text, such as "M8x1.25"
inline const mp::wchar* const kThreadKind = WIDE("kind");               // text: "internal" or "external"
inline const mp::wchar* const kThreadHand = WIDE("hand");               // text: "right" or "left"
inline const mp::wchar* const kThreadDiameter = WIDE("diameter");       // length: the nominal one
inline const mp::wchar* const kThreadPitch = WIDE("pitch");             // length
inline const mp::wchar* const kThreadDepth = WIDE("depth");             // length

} // namespace mechanical_conventions
