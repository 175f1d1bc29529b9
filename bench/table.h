#pragma once

#include "bench/times.h"

namespace bench
{

/// Prints the steps of a road beside their floors.
void printSteps(const RoadTimes& times);

/// Prints the whole writes and reads of a small and of a large model, per byte.
void printGrowth(const RoadTimes& small, const RoadTimes& large);

} // namespace bench
