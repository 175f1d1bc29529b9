#pragma once

#include "received_bodies.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <iosfwd>

/// A line for each body, with the name of its block. The bodies are measured.
void printBodies(std::ostream& stream, const ReceivedBodies& bodies, const vrx::ExcProductStructure& structure);
