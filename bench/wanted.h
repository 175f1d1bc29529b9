#pragma once

#include "bench/peaks.h"
#include "bench/times.h"

#include <vector>

namespace bench
{

/// A road with all that was measured of it.
struct Measured
{
    RoadTimes times;
    Peaks peaks;
};

/// Prints what the roads reach and what is wanted of them; these are, in this order, the scene, the scene with a
/// polygon a face, the structure, the PMI and the tiny message.
void printWanted(const std::vector<Measured>& roads);

} // namespace bench
