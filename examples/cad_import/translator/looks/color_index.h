#pragma once

#include "vrx_api/vrx_api_exchange_common.h"

/// The colour index of drawings, 1 to 255, as the DXF reference has it (group code 62). Several indices may have the
/// same colour.
namespace color_index
{

/// The colour of an index from 1 to 255.
vrx::ExcColor color(int index);

/// The lowest index with just this colour, whatever its alpha; 0 when none has it.
int matching(const vrx::ExcColor& color);

/// The lowest index of those whose colours are nearest to this one, which has red, green and blue.
int nearest(const vrx::ExcColor& color);

} // namespace color_index
