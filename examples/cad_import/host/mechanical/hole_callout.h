#pragma once

#include "mechanical/part_holes.h"

#include <vector>

/// Holes as drawings write them, on one line each, in the unit of their coordinates.
namespace hole_callout
{

/// A length or an angle, to a millionth.
mp::wstring number(double value);

/// Such as "⌀8.5 ↧28 TIP 118° M10x1.5 ↧20" or "⌀9 THRU ⌴ ⌀15 ↧9"; the threads are those of the part.
mp::wstring text(const PartHole& hole, const std::vector<PartThread>& threads);

/// Such as "M10x1.5 ↧20" or "M16x2 LH"; a depth that is that of the hole is left out.
mp::wstring text(const PartThread& thread, double holeDepth = 0);

/// Such as "2 × 2 grid, 36 × 68" or "6 on ⌀50"; with "× 30°" when they do not go all around.
mp::wstring text(const PartPattern& pattern);

} // namespace hole_callout
