#pragma once

#include "common/body_figures.h"
#include "received_bodies.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <cstdint>
#include <map>
#include <vector>

/// Bodies taken together.
BodyFigures sumOf(const std::vector<ReceivedBodies::Body>& bodies);

/// The figures of each assembly as a whole, by block: of all bodies below it, which are measured, where they are
/// placed, but for what is suppressed. An assembly below which something is missing has none.
std::map<std::uint64_t, BodyFigures> assemblyFigures(const vrx::ExcProductStructure& structure,
                                                     const ReceivedBodies& bodies);
