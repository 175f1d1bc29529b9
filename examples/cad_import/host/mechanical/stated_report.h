#pragma once

#include "mechanical/mechanical_model.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <iosfwd>

/// How what arrived compares with what the file states of it: a line for the products that have the same figures
/// as stated, and one for each figure that differs. Nothing when nothing is stated.
void printStated(std::ostream& stream, const MechanicalModel& mechanical, const vrx::ExcProductStructure& structure);
