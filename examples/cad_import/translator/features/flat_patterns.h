#pragma once

#include <gp_XY.hxx>

#include <cstddef>
#include <optional>
#include <vector>

/// Where a hole opens, in the plane of the openings.
struct Place
{
    gp_XY point;
    std::size_t hole;
};

using Places = std::vector<Place>;

/// Places evenly on a circle, or in a grid row by row.
struct FlatPattern
{
    std::vector<std::size_t> holes;
    bool isCircular = false;
    gp_XY centre;
    double step = 0; // in degrees
    gp_XY row;       // from place to place
    gp_XY column;
    std::size_t rowCount = 1; // places in a row
};

/// Patterns of places, which are exact to a tolerance.
namespace flat_patterns
{

/// All of the places, evenly around the centre.
std::optional<FlatPattern> evenCircle(const gp_XY& centre, const Places& places, double tolerance);

/// Arcs of places, which are all at one distance from the centre, with the smallest step between two of them; none
/// unless each place is on one.
std::vector<FlatPattern> evenArcs(const gp_XY& centre, const Places& places, double tolerance);

/// The full circle with the most of these places, which are all at one distance from the centre.
std::optional<FlatPattern> circleOfMost(const gp_XY& centre, const Places& places, double tolerance);

/// All of the places, in full rows.
std::optional<FlatPattern> fullGrid(const Places& places, double tolerance);

/// The grid of full rows with the most of these places, with three in a row or more.
std::optional<FlatPattern> gridOfMost(const Places& places, double tolerance);

} // namespace flat_patterns
