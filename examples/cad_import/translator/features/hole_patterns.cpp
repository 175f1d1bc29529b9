#include "features/hole_patterns.h"

#include "features/face_surface.h"
#include "features/flat_patterns.h"

#include <gp.hxx>
#include <gp_Ax2.hxx>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace
{

const double kPlace = 2e-3;           // how exact the places are, in diameters of the holes
const std::size_t kMostToSplit = 200; // holes that are no pattern as a whole, and axes to look around

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
    std::optional<FlatPattern> whole() const;
    std::optional<FlatPattern> largestCircle() const;
    bool isOnAxis(const gp_XY& point) const;
    bool isPlace(const gp_XY& point) const;
    void take(const FlatPattern& pattern);
    HolePattern inSpace(const FlatPattern& pattern) const;

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
            if (!isOnAxis(point) && !isPlace(point))
            {
                m_axes.push_back(point);
            }
        }
    }
}

bool PatternSearch::isOnAxis(const gp_XY& point) const
{
    return std::any_of(m_axes.begin(), m_axes.end(),
                       [&](const gp_XY& axis) { return (axis - point).Modulus() <= m_tolerance; });
}

bool PatternSearch::isPlace(const gp_XY& point) const
{
    return std::any_of(m_places.begin(), m_places.end(),
                       [&](const Place& place) { return (place.point - point).Modulus() <= m_tolerance; });
}

HolePattern PatternSearch::inSpace(const FlatPattern& pattern) const
{
    const auto vector = [this](const gp_XY& flat) {
        return gp_Vec(m_frame.XDirection()) * flat.X() + gp_Vec(m_frame.YDirection()) * flat.Y();
    };
    HolePattern result;
    result.holes = pattern.holes;
    result.isCircular = pattern.isCircular;
    if (pattern.isCircular)
    {
        result.center = m_frame.Location().Translated(vector(pattern.centre));
        result.axis = m_frame.Direction();
        result.step = pattern.step;
        return result;
    }
    result.primary = gp_Dir(vector(pattern.row));
    result.secondary = gp_Dir(vector(pattern.column));
    result.primaryCount = pattern.rowCount;
    result.primarySpacing = pattern.row.Modulus();
    result.secondarySpacing = pattern.holes.size() > pattern.rowCount ? pattern.column.Modulus() : 0;
    return result;
}

std::optional<FlatPattern> PatternSearch::whole() const
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
    std::optional<FlatPattern> pattern;
    if (mayBeCircle)
    {
        pattern = flat_patterns::evenCircle(centre, m_places, m_tolerance);
    }
    return pattern ? pattern : flat_patterns::fullGrid(m_places, m_tolerance);
}

std::optional<FlatPattern> PatternSearch::largestCircle() const
{
    std::optional<FlatPattern> largest;
    const auto note = [&largest](const FlatPattern& pattern) {
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
            const std::vector<FlatPattern> arcs = flat_patterns::evenArcs(axis, places, m_tolerance);
            std::for_each(arcs.begin(), arcs.end(), note);
            if (arcs.empty())
            {
                if (const std::optional<FlatPattern> circle = flat_patterns::circleOfMost(axis, places, m_tolerance))
                {
                    note(*circle);
                }
            }
        }
    }
    return largest;
}

void PatternSearch::take(const FlatPattern& pattern)
{
    m_places.erase(std::remove_if(m_places.begin(), m_places.end(),
                                  [&](const Place& place) {
                                      return std::find(pattern.holes.begin(), pattern.holes.end(), place.hole) !=
                                             pattern.holes.end();
                                  }),
                   m_places.end());
    m_found.push_back(inSpace(pattern));
}

std::vector<HolePattern> PatternSearch::find()
{
    bool goesOn = true;
    while (goesOn)
    {
        std::optional<FlatPattern> pattern = whole();
        if (!pattern && m_places.size() > 2 && m_places.size() <= kMostToSplit)
        {
            pattern = largestCircle();
            pattern = pattern ? pattern : flat_patterns::gridOfMost(m_places, m_tolerance);
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
