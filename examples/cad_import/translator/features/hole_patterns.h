#pragma once

#include "features/hole.h"

#include <gp_Ax1.hxx>

#include <cstddef>
#include <vector>

/// Equal holes in a grid, row by row along the primary direction, or evenly around an axis.
struct HolePattern
{
    std::vector<std::size_t> holes;
    bool isCircular = false;
    gp_Pnt center;
    gp_Dir axis;
    double step = 0; // in degrees, about that
    gp_Dir primary;
    gp_Dir secondary;
    std::size_t primaryCount = 1;
    double primarySpacing = 0;
    double secondarySpacing = 0;
};

/// The patterns of the holes of one body, given the axes of its round faces; each hole is in one at most.
///
/// Equal holes that open in one plane with one direction are tried as a whole: three or more evenly on a circle, or two
/// or more in a full grid; four in a square are on a circle when one of the axes goes through its middle. When they are
/// neither, circles around the axes and even arcs of three or more are taken out of them, those with the most holes
/// first, and then full grids of three in a row or more; the rest is tried as a whole once more.
std::vector<HolePattern> patternsOf(const std::vector<Hole>& holes, const std::vector<gp_Ax1>& axes);
