#pragma once

#include <gp_Pnt.hxx>

#include <array>
#include <cstddef>
#include <vector>

/// What is drawn: lines, and areas that are filled.
struct Drawing
{
    std::vector<std::vector<gp_Pnt>> lines;
    std::vector<gp_Pnt> vertices; // of the triangles
    std::vector<std::array<std::size_t, 3>> triangles;
};

/// Fills the areas between closed lines of one plane. False when there is nothing to fill, or when the lines are not
/// closed or not flat.
bool fill(const std::vector<std::vector<gp_Pnt>>& boundaries, Drawing& drawing);
