#pragma once

#include "mp/wide.h"

/// Names of the properties that the translator derives itself; a host may look for them. All others are the file's own.
/// Lengths, areas and volumes are in the units of the product structure.
namespace property_names
{

// of every block
inline const mp::wchar* const kPartNumber = WIDE("part number");
inline const mp::wchar* const kVersion = WIDE("version");

// of a part
inline const mp::wchar* const kSolids = WIDE("solids");      // integer
inline const mp::wchar* const kShells = WIDE("open shells"); // integer: those outside of solids
inline const mp::wchar* const kFaces = WIDE("faces");        // integer

// of a block reference, when colours are asked for by their index
inline const mp::wchar* const kColorIndex = WIDE("color index"); // integer: the colour index of drawings, 1 to 255

// of the product, from the head of the file
inline const mp::wchar* const kFileLengthUnit = WIDE("length unit of the file");

} // namespace property_names
