#include "features/flat_patterns.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

const double kFullTurn = 6.28318530717958647692;

const Place* at(const Places& places, const gp_XY& point, double tolerance)
{
    const auto found = std::find_if(places.begin(), places.end(),
                                    [&](const Place& place) { return (place.point - point).Modulus() <= tolerance; });
    return found != places.end() ? &*found : nullptr;
}

// The largest grid of full rows from a corner in one direction.
Places gridFrom(const Places& places, const Place& corner, const gp_XY& row, double tolerance)
{
    Places first{corner};
    while (const Place* const next = at(places, first.back().point + row, tolerance))
    {
        first.push_back(*next);
    }
    Places largest = first;
    for (const Place& place : places)
    {
        const gp_XY column = place.point - corner.point;
        if (first.size() < 2 || column.Modulus() <= tolerance || column.Crossed(row) >= 0 ||
            std::abs(column.Dot(row)) > tolerance * row.Modulus())
        {
            continue;
        }
        std::vector<Places> rows;
        for (Places next = first; next.size() == first.size();)
        {
            rows.push_back(std::move(next));
            next.clear();
            for (const Place& last : rows.back())
            {
                if (const Place* const found = at(places, last.point + column, tolerance))
                {
                    next.push_back(*found);
                }
            }
        }
        if (rows.size() > 1 && rows.size() * first.size() > largest.size())
        {
            largest.clear();
            for (const Places& one : rows)
            {
                largest.insert(largest.end(), one.begin(), one.end());
            }
        }
    }
    return largest;
}

} // namespace

namespace flat_patterns
{

std::optional<FlatPattern> evenCircle(const gp_XY& centre, const Places& places, double tolerance)
{
    const double radius = (places.front().point - centre).Modulus();
    const auto angle = [&centre](const Place& place) {
        return std::atan2(place.point.Y() - centre.Y(), place.point.X() - centre.X());
    };
    const double step = kFullTurn / static_cast<double>(places.size());
    const double first = angle(places.front());
    std::vector<std::pair<long, std::size_t>> order;
    for (const Place& place : places)
    {
        const double turned = angle(place) - first;
        const long number = std::lround(turned / step);
        if (std::abs((place.point - centre).Modulus() - radius) > tolerance ||
            std::abs(turned - static_cast<double>(number) * step) * radius > tolerance)
        {
            return std::nullopt;
        }
        const long count = static_cast<long>(places.size());
        order.emplace_back((number % count + count) % count, place.hole);
    }
    std::sort(order.begin(), order.end());
    FlatPattern circle;
    circle.isCircular = true;
    circle.centre = centre;
    circle.step = 360.0 / static_cast<double>(places.size());
    for (const auto& [number, hole] : order)
    {
        if (number != static_cast<long>(circle.holes.size()))
        {
            return std::nullopt;
        }
        circle.holes.push_back(hole);
    }
    return circle;
}

std::vector<FlatPattern> evenArcs(const gp_XY& centre, const Places& places, double tolerance)
{
    const double radius = (places.front().point - centre).Modulus();
    std::vector<std::pair<double, std::size_t>> order;
    for (const Place& place : places)
    {
        order.emplace_back(std::atan2(place.point.Y() - centre.Y(), place.point.X() - centre.X()), place.hole);
    }
    std::sort(order.begin(), order.end());
    const std::size_t count = order.size();
    std::vector<double> gaps; // behind each place
    for (std::size_t i = 0; i < count; ++i)
    {
        gaps.push_back(order[(i + 1) % count].first - order[i].first + (i + 1 == count ? kFullTurn : 0));
    }
    const double step = *std::min_element(gaps.begin(), gaps.end());
    const auto isWide = [&](std::size_t i) { return (gaps[i % count] - step) * radius > 2 * tolerance; };
    std::size_t start = 0; // behind a wide gap
    while (start < count && !isWide(start + count - 1))
    {
        ++start;
    }
    std::vector<FlatPattern> arcs;
    for (std::size_t i = start; start < count && i < start + count; ++i)
    {
        if (arcs.empty() || isWide(i + count - 1))
        {
            arcs.emplace_back();
            arcs.back().isCircular = true;
            arcs.back().centre = centre;
            arcs.back().step = step * 360.0 / kFullTurn;
        }
        arcs.back().holes.push_back(order[i % count].second);
    }
    const bool areAllArcs =
        std::all_of(arcs.begin(), arcs.end(), [](const FlatPattern& arc) { return arc.holes.size() >= 3; });
    return areAllArcs ? arcs : std::vector<FlatPattern>();
}

std::optional<FlatPattern> circleOfMost(const gp_XY& centre, const Places& places, double tolerance)
{
    for (std::size_t count = places.size(); count >= 3; --count)
    {
        for (const Place& first : places)
        {
            Places even;
            for (std::size_t i = 0; i < count && even.size() == i; ++i)
            {
                const double turn = kFullTurn * static_cast<double>(i) / static_cast<double>(count);
                const gp_XY arm = first.point - centre;
                const gp_XY point = centre + arm * std::cos(turn) + gp_XY(-arm.Y(), arm.X()) * std::sin(turn);
                const auto found = std::find_if(places.begin(), places.end(), [&](const Place& place) {
                    return (place.point - point).Modulus() <= tolerance;
                });
                if (found != places.end())
                {
                    even.push_back(*found);
                }
            }
            if (even.size() == count)
            {
                return evenCircle(centre, even, tolerance);
            }
        }
    }
    return std::nullopt;
}

// From a corner. The nearest place to a corner is the next one in its row or column.
std::optional<FlatPattern> fullGrid(const Places& places, double tolerance)
{
    const Place& corner =
        *std::min_element(places.begin(), places.end(), [tolerance](const Place& left, const Place& right) {
            return std::abs(left.point.X() - right.point.X()) > tolerance ? left.point.X() < right.point.X()
                                                                          : left.point.Y() < right.point.Y();
        });
    gp_XY row;
    gp_XY column;
    for (const Place& place : places)
    {
        const gp_XY way = place.point - corner.point;
        if (&place != &corner && (row.Modulus() == 0 || way.Modulus() < row.Modulus()))
        {
            row = way;
        }
    }
    if (row.Modulus() <= tolerance)
    {
        return std::nullopt;
    }
    for (const Place& place : places)
    {
        const gp_XY way = place.point - corner.point;
        if (&place != &corner && std::abs(way.Dot(row)) <= tolerance * row.Modulus() &&
            (column.Modulus() == 0 || way.Modulus() < column.Modulus()))
        {
            column = way;
        }
    }
    if (column.Modulus() == 0)
    {
        column = gp_XY(-row.Y(), row.X());
    }
    std::vector<std::pair<std::pair<long, long>, std::size_t>> order;
    long rowCount = 1;
    for (const Place& place : places)
    {
        const gp_XY way = place.point - corner.point;
        const double inRow = way.Dot(row) / row.SquareModulus();
        const double inColumn = way.Dot(column) / column.SquareModulus();
        if (!(std::abs(inRow) < 1e6) || !(std::abs(inColumn) < 1e6))
        {
            return std::nullopt;
        }
        const long i = std::lround(inRow);
        const long j = std::lround(inColumn);
        if ((row * static_cast<double>(i) + column * static_cast<double>(j) - way).Modulus() > tolerance)
        {
            return std::nullopt;
        }
        rowCount = std::max(rowCount, i + 1);
        order.emplace_back(std::make_pair(j, i), place.hole);
    }
    std::sort(order.begin(), order.end());
    FlatPattern grid;
    for (const auto& [place, hole] : order)
    {
        const long number = static_cast<long>(grid.holes.size());
        if (place.second != number % rowCount || place.first != number / rowCount)
        {
            return std::nullopt;
        }
        grid.holes.push_back(hole);
    }
    grid.rowCount = static_cast<std::size_t>(rowCount);
    if (grid.holes.size() % grid.rowCount != 0)
    {
        return std::nullopt;
    }
    grid.row = row;
    grid.column = column;
    return grid;
}

std::optional<FlatPattern> gridOfMost(const Places& places, double tolerance)
{
    Places largest;
    for (const Place& corner : places)
    {
        for (const Place& next : places)
        {
            const gp_XY row = next.point - corner.point;
            if (row.Modulus() > tolerance)
            {
                const Places grid = gridFrom(places, corner, row, tolerance);
                largest = grid.size() > largest.size() ? grid : largest;
            }
        }
    }
    return largest.size() >= 3 ? fullGrid(largest, tolerance) : std::nullopt;
}

} // namespace flat_patterns
