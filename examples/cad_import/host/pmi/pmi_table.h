#pragma once

#include "pmi/received_pmi.h"
#include "received_bodies.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <iosfwd>

/// The PMI of each block as a table for people: a line for each annotation with its faces and edges, by their numbers
/// in the body, and the saved views that show it; then the saved views themselves.
void printPmi(std::ostream& stream, const ReceivedPmi& pmi, const ReceivedBodies& bodies,
              const vrx::ExcProductStructure& structure);
