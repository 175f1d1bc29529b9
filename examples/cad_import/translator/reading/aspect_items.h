#pragma once

#include "reading/step_records.h"

#include <vector>

/// The geometry of shape aspects, by the ids of its items.
namespace aspect_items
{

/// What the file ties to an aspect itself.
std::vector<int> of(const StepRecord& aspect);

/// The solids among it, and those that a property of the aspect brings as its shape; each once.
std::vector<int> solids(const StepRecord& aspect);

} // namespace aspect_items
