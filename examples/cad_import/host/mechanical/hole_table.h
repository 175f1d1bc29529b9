#pragma once

#include "mechanical/mechanical_model.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <iosfwd>

/// The holes of each part as a table for the shop: a line for those of one kind and size, with their number, and below
/// it where they are and in which direction they go; then the threads that are in no hole.
void printHoles(std::ostream& stream, const MechanicalModel& mechanical, const vrx::ExcProductStructure& structure);
