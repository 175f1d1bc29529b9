#include "features/hole_patterns.h"

#include "features/face_surface.h"

#include <gp.hxx>
#include <gp_Ax2.hxx>
#include <gp_XY.hxx>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace
{

const double kPlace = 2e-3;           // how exact the places are, in diameters of the holes
const std::size_t kMostToSplit = 200; // holes that are no pattern as a whole, and axes to look around
const double kFullTurn = 6.28318530717958647692;

struct Place
{
    gp_XY point; // in the plane of the openings
    std::size_t hole;
};

using Places = std::vector<Place>;

bool areEqual(const Hole& left, const Hole& right)
{
    const double tolerance = kSameLength * left.diameter;
    const std::pair<double, double> lengths[] = {{left.diameter, right.diameter},
                                                 {left.depth, right.depth},
                                                 {left.counterDiameter, right.counterDiameter},
                                                 {left.counterDepth, right.counterDepth},
                                                 {left.sinkDiameter, right.sinkDiameter}};
    return left.kind == right.kind && left.end == right.end &&
           left.direction.IsEqual(right.direction, kSameDirection) &&
           std::abs(left.angle - right.angle) + std::abs(left.tipAngle - right.tipAngle) < 0.01 &&
           std::all_of(std::begin(lengths), std::end(lengths), [=](const auto& pair) {
               return std::abs(pair.first - pair.second) <= tolerance + kSameLength * pair.first;
           });
}

bool openInOnePlane(const Hole& left, const Hole& right)
{
    return std::abs(gp_Vec(left.center, right.center).Dot(gp_Vec(left.direction))) <= kPlace * left.diameter;
}

// With the coordinates of the block as far as they go, so that patterns begin where these are lowest.
gp_Ax2 frameOf(const Hole& hole)
{
    const gp_Dir& axis = hole.direction;
    const bool isAlongX = std::abs(axis.X()) > std::abs(axis.Y()) && std::abs(axis.X()) > std::abs(axis.Z());
    const bool isBackwards = axis.X() + axis.Y() + axis.Z() < 0;
    return {hole.center, isBackwards ? axis.Reversed() : axis, isAlongX ? gp::DY() : gp::DX()};
}

// The holes of one size that open in one plane.
class PatternSearch
{
public:
    PatternSearch(const std::vector<Hole>& holes, const std::vector<std::size_t>& group,
                  const std::vector<gp_Ax1>& axes);

    std::vector<HolePattern> find();

private:
    std::optional<HolePattern> whole() const;
    std::optional<HolePattern> circleAround(const gp_XY& centre, Places places) const;
    std::vector<HolePattern> arcsOf(const gp_XY& centre, const Places& places) const;
    std::optional<HolePattern> fullCircle(const gp_XY& centre, const Places& places) const;
    std::optional<HolePattern> gridOf(const Places& places) const;
    std::optional<HolePattern> largestCircle() const;
    std::optional<HolePattern> largestGrid() const;
    Places gridFrom(const Place& corner, const gp_XY& row) const;

    const Place* at(const gp_XY& point) const;
    bool isOnAxis(const gp_XY& point) const;
    gp_Pnt inSpace(const gp_XY& point) const;
    gp_Dir directionOf(const gp_XY& vector) const;
    void take(HolePattern pattern);

    gp_Ax2 m_frame;
    double m_tolerance;
    Places m_places;
    std::vector<gp_XY> m_axes;
    std::vector<HolePattern> m_found;
};

PatternSearch::PatternSearch(const std::vector<Hole>& holes, const std::vector<std::size_t>& group,
                             const std::vector<gp_Ax1>& axes)
    : m_frame(frameOf(holes[group.front()]))
    , m_tolerance(kPlace * holes[group.front()].diameter)
{
    const auto flat = [this](const gp_Pnt& point) {
        const gp_Vec place(m_frame.Location(), point);
        return gp_XY(place.Dot(gp_Vec(m_frame.XDirection())), place.Dot(gp_Vec(m_frame.YDirection())));
    };
    for (const std::size_t hole : group)
    {
        m_places.push_back({flat(holes[hole].center), hole});
    }
    for (const gp_Ax1& axis : axes)
    {
        if (m_axes.size() < kMostToSplit && axis.Direction().IsParallel(m_frame.Direction(), kSameDirection))
        {
            const gp_XY point = flat(axis.Location());
            if (!isOnAxis(point) && at(point) == nullptr)
            {
                m_axes.push_back(point);
            }
        }
    }
}

const Place* PatternSearch::at(const gp_XY& point) const
{
    const auto found = std::find_if(m_places.begin(), m_places.end(),
                                    [&](const Place& place) { return (place.point - point).Modulus() <= m_tolerance; });
    return found != m_places.end() ? &*found : nullptr;
}

bool PatternSearch::isOnAxis(const gp_XY& point) const
{
    return std::any_of(m_axes.begin(), m_axes.end(),
                       [&](const gp_XY& axis) { return (axis - point).Modulus() <= m_tolerance; });
}

gp_Pnt PatternSearch::inSpace(const gp_XY& point) const
{
    return m_frame.Location().Translated(gp_Vec(m_frame.XDirection()) * point.X() +
                                         gp_Vec(m_frame.YDirection()) * point.Y());
}

gp_Dir PatternSearch::directionOf(const gp_XY& vector) const
{
    return gp_Dir(gp_Vec(m_frame.XDirection()) * vector.X() + gp_Vec(m_frame.YDirection()) * vector.Y());
}

// All of the places, evenly around the centre.
std::optional<HolePattern> PatternSearch::circleAround(const gp_XY& centre, Places places) const
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
        if (std::abs((place.point - centre).Modulus() - radius) > m_tolerance ||
            std::abs(turned - static_cast<double>(number) * step) * radius > m_tolerance)
        {
            return std::nullopt;
        }
        const long count = static_cast<long>(places.size());
        order.emplace_back((number % count + count) % count, place.hole);
    }
    std::sort(order.begin(), order.end());
    HolePattern circle;
    circle.isCircular = true;
    circle.center = inSpace(centre);
    circle.axis = m_frame.Direction();
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

// All of the places, in full rows from a corner. The nearest place to a corner is the next one in its row or column.
std::optional<HolePattern> PatternSearch::gridOf(const Places& places) const
{
    const Place& corner =
        *std::min_element(places.begin(), places.end(), [this](const Place& left, const Place& right) {
            return std::abs(left.point.X() - right.point.X()) > m_tolerance ? left.point.X() < right.point.X()
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
    if (row.Modulus() <= m_tolerance)
    {
        return std::nullopt;
    }
    for (const Place& place : places)
    {
        const gp_XY way = place.point - corner.point;
        if (&place != &corner && std::abs(way.Dot(row)) <= m_tolerance * row.Modulus() &&
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
        if ((row * static_cast<double>(i) + column * static_cast<double>(j) - way).Modulus() > m_tolerance)
        {
            return std::nullopt;
        }
        rowCount = std::max(rowCount, i + 1);
        order.emplace_back(std::make_pair(j, i), place.hole);
    }
    std::sort(order.begin(), order.end());
    HolePattern grid;
    for (const auto& [place, hole] : order)
    {
        const long number = static_cast<long>(grid.holes.size());
        if (place.second != number % rowCount || place.first != number / rowCount)
        {
            return std::nullopt;
        }
        grid.holes.push_back(hole);
    }
    grid.primaryCount = static_cast<std::size_t>(rowCount);
    if (grid.holes.size() % grid.primaryCount != 0)
    {
        return std::nullopt;
    }
    grid.primary = directionOf(row);
    grid.secondary = directionOf(column);
    grid.primarySpacing = row.Modulus();
    grid.secondarySpacing = grid.holes.size() > grid.primaryCount ? column.Modulus() : 0;
    return grid;
}

std::optional<HolePattern> PatternSearch::whole() const
{
    if (m_places.size() < 2)
    {
        return std::nullopt;
    }
    gp_XY centre;
    for (const Place& place : m_places)
    {
        centre += place.point / static_cast<double>(m_places.size());
    }
    const bool mayBeCircle = m_places.size() == 4 ? isOnAxis(centre) : m_places.size() >= 3;
    std::optional<HolePattern> pattern;
    if (mayBeCircle)
    {
        pattern = circleAround(centre, m_places);
    }
    return pattern ? pattern : gridOf(m_places);
}

// Arcs of places, which are all at one distance from the centre, with the smallest step between two of them; none
// unless each place is on one.
std::vector<HolePattern> PatternSearch::arcsOf(const gp_XY& centre, const Places& places) const
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
    const auto isWide = [&](std::size_t i) { return (gaps[i % count] - step) * radius > 2 * m_tolerance; };
    std::size_t start = 0; // behind a wide gap
    while (start < count && !isWide(start + count - 1))
    {
        ++start;
    }
    std::vector<HolePattern> arcs;
    for (std::size_t i = start; start < count && i < start + count; ++i)
    {
        if (arcs.empty() || isWide(i + count - 1))
        {
            arcs.emplace_back();
            arcs.back().isCircular = true;
            arcs.back().center = inSpace(centre);
            arcs.back().axis = m_frame.Direction();
            arcs.back().step = step * 360.0 / kFullTurn;
        }
        arcs.back().holes.push_back(order[i % count].second);
    }
    const bool areAllArcs =
        std::all_of(arcs.begin(), arcs.end(), [](const HolePattern& arc) { return arc.holes.size() >= 3; });
    return areAllArcs ? arcs : std::vector<HolePattern>();
}

// The full circle with the most of these places, which are all at one distance from the centre.
std::optional<HolePattern> PatternSearch::fullCircle(const gp_XY& centre, const Places& places) const
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
                    return (place.point - point).Modulus() <= m_tolerance;
                });
                if (found != places.end())
                {
                    even.push_back(*found);
                }
            }
            if (even.size() == count)
            {
                return circleAround(centre, even);
            }
        }
    }
    return std::nullopt;
}

std::optional<HolePattern> PatternSearch::largestCircle() const
{
    std::optional<HolePattern> largest;
    const auto note = [&largest](const HolePattern& pattern) {
        if (!largest || pattern.holes.size() > largest->holes.size())
        {
            largest = pattern;
        }
    };
    for (const gp_XY& axis : m_axes)
    {
        Places sorted = m_places;
        const auto distance = [&axis](const Place& place) { return (place.point - axis).Modulus(); };
        std::sort(sorted.begin(), sorted.end(),
                  [&](const Place& left, const Place& right) { return distance(left) < distance(right); });
        for (auto begin = sorted.begin(); begin != sorted.end();)
        {
            const auto end = std::find_if(begin, sorted.end(), [&](const Place& place) {
                return distance(place) > distance(*begin) + m_tolerance;
            });
            const Places places(begin, end);
            begin = end;
            if (places.size() < 3)
            {
                continue;
            }
            const std::vector<HolePattern> arcs = arcsOf(axis, places);
            std::for_each(arcs.begin(), arcs.end(), note);
            if (arcs.empty())
            {
                if (const std::optional<HolePattern> circle = fullCircle(axis, places))
                {
                    note(*circle);
                }
            }
        }
    }
    return largest;
}

// The largest grid of full rows from a corner in one direction.
Places PatternSearch::gridFrom(const Place& corner, const gp_XY& row) const
{
    Places first{corner};
    while (const Place* const next = at(first.back().point + row))
    {
        first.push_back(*next);
    }
    Places largest = first;
    for (const Place& place : m_places)
    {
        const gp_XY column = place.point - corner.point;
        if (first.size() < 2 || column.Crossed(row) >= 0 || std::abs(column.Dot(row)) > m_tolerance * row.Modulus())
        {
            continue;
        }
        std::size_t width = first.size();
        std::vector<Places> rows{first};
        while (width > 1)
        {
            Places next;
            for (std::size_t i = 0; i < width; ++i)
            {
                const Place* const found = at(rows.back()[i].point + column);
                if (found == nullptr)
                {
                    break;
                }
                next.push_back(*found);
            }
            if (next.size() < width) // a narrower grid may still go on
            {
                break;
            }
            rows.push_back(next);
        }
        if (rows.size() > 1 && rows.size() * width > largest.size())
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

std::optional<HolePattern> PatternSearch::largestGrid() const
{
    Places largest;
    for (const Place& corner : m_places)
    {
        for (const Place& next : m_places)
        {
            const gp_XY row = next.point - corner.point;
            if (row.Modulus() > m_tolerance)
            {
                const Places grid = gridFrom(corner, row);
                largest = grid.size() > largest.size() ? grid : largest;
            }
        }
    }
    return largest.size() >= 3 ? gridOf(largest) : std::nullopt;
}

void PatternSearch::take(HolePattern pattern)
{
    m_places.erase(std::remove_if(m_places.begin(), m_places.end(),
                                  [&](const Place& place) {
                                      return std::find(pattern.holes.begin(), pattern.holes.end(), place.hole) !=
                                             pattern.holes.end();
                                  }),
                   m_places.end());
    m_found.push_back(std::move(pattern));
}

std::vector<HolePattern> PatternSearch::find()
{
    bool goesOn = true;
    while (goesOn)
    {
        std::optional<HolePattern> pattern = whole();
        if (!pattern && m_places.size() > 2 && m_places.size() <= kMostToSplit)
        {
            pattern = largestCircle();
            pattern = pattern ? pattern : largestGrid();
        }
        goesOn = pattern.has_value();
        if (pattern)
        {
            take(*pattern);
        }
    }
    return m_found;
}

} // namespace

std::vector<HolePattern> patternsOf(const std::vector<Hole>& holes, const std::vector<gp_Ax1>& axes)
{
    std::vector<std::vector<std::size_t>> groups;
    for (std::size_t i = 0; i < holes.size(); ++i)
    {
        const auto group = std::find_if(groups.begin(), groups.end(), [&](const std::vector<std::size_t>& one) {
            return areEqual(holes[one.front()], holes[i]) && openInOnePlane(holes[one.front()], holes[i]);
        });
        if (group != groups.end())
        {
            group->push_back(i);
        }
        else
        {
            groups.push_back({i});
        }
    }
    std::vector<HolePattern> patterns;
    for (const std::vector<std::size_t>& group : groups)
    {
        if (group.size() > 1)
        {
            const std::vector<HolePattern> found = PatternSearch(holes, group, axes).find();
            patterns.insert(patterns.end(), found.begin(), found.end());
        }
    }
    return patterns;
}
