#include "features/hole_rings.h"

#include <gp_Lin.hxx>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>

namespace
{

using Kind = FaceSurface::Kind;

gp_Pnt at(const gp_Ax1& axis, double along)
{
    return axis.Location().Translated(gp_Vec(axis.Direction()) * along);
}

double radiusOf(const FaceSurface& surface, const gp_Pnt& place)
{
    return surface.kind == Kind::Torus ? surface.radius : surface.radiusAt(place);
}

// Where a line crosses a surface that goes on without end, along the line.
std::vector<double> crossings(const gp_Ax1& line, const FaceSurface& surface)
{
    const gp_Vec axis(surface.axis.Direction());
    const gp_Vec way(line.Direction());
    const gp_Vec place(surface.axis.Location(), line.Location());
    if (surface.kind == Kind::Plane)
    {
        const double cosine = way.Dot(axis);
        return std::abs(cosine) > kSameDirection ? std::vector<double>{-place.Dot(axis) / cosine}
                                                 : std::vector<double>();
    }
    if (surface.kind == Kind::Torus || surface.kind == Kind::Other)
    {
        return {};
    }
    // The distance from the axis, or from the centre, is the radius there.
    const gp_Vec along = surface.kind == Kind::Sphere ? gp_Vec() : axis;
    const gp_Vec out = place - along * place.Dot(along);
    const gp_Vec outPerStep = way - along * way.Dot(along);
    const double radius = surface.radius + surface.slope * place.Dot(along);
    const double radiusPerStep = surface.slope * way.Dot(along);
    const double square = outPerStep.SquareMagnitude() - radiusPerStep * radiusPerStep;
    const double half = out.Dot(outPerStep) - radius * radiusPerStep;
    const double rest = half * half - square * (out.SquareMagnitude() - radius * radius);
    if (std::abs(square) < kSameDirection * kSameDirection || !(rest >= 0))
    {
        return {};
    }
    return {(-half - std::sqrt(rest)) / square, (-half + std::sqrt(rest)) / square};
}

} // namespace

HoleRings::HoleRings(const FaceRegions& regions)
    : m_regions(regions)
    , m_firstEnds(regions.all().size(), -1)
{
    for (std::size_t region = 0; region < regions.all().size(); ++region)
    {
        if (isWall(region) || regions.all()[region].surface.kind == Kind::Torus)
        {
            addRing(region);
        }
    }
    joinNeighbours();
    joinAcrossSteps();
    for (RingEnd& end : m_ends)
    {
        if (end.next < 0 && end.bottom < 0)
        {
            end.place = pierced(end);
        }
    }
}

bool HoleRings::isWall(std::size_t region) const
{
    const FaceSurface& surface = m_regions.all()[region].surface;
    return surface.isInner && (surface.kind == Kind::Cylinder || surface.kind == Kind::Cone);
}

void HoleRings::addRing(std::size_t region)
{
    const FaceSurface& surface = m_regions.all()[region].surface;
    std::vector<RegionLoop> around;
    for (RegionLoop& loop : m_regions.loops(region, surface.axis))
    {
        if (loop.turns != 0)
        {
            around.push_back(std::move(loop));
        }
    }
    const bool isTip = around.size() == 1 && surface.kind == Kind::Cone;
    if (around.size() != 2 && !isTip)
    {
        return;
    }
    const int first = static_cast<int>(m_ends.size());
    m_firstEnds[region] = first;
    for (RegionLoop& loop : around)
    {
        RingEnd end;
        end.region = region;
        end.place = at(surface.axis, (loop.low + loop.high) / 2);
        end.neighbours = m_regions.across(loop.edges, region);
        end.loop = std::move(loop);
        m_ends.push_back(std::move(end));
    }
    if (!isTip)
    {
        m_ends[static_cast<std::size_t>(first)].opposite = first + 1;
        m_ends[static_cast<std::size_t>(first) + 1].opposite = first;
    }
}

// Out of the ring, along its axis.
gp_Vec HoleRings::outwards(const RingEnd& end) const
{
    const FaceSurface& surface = surfaceOf(end);
    const gp_Pnt from = end.opposite >= 0 ? m_ends[static_cast<std::size_t>(end.opposite)].place
                                          : at(surface.axis, -surface.radius / surface.slope);
    return gp_Vec(surface.axis.Direction()) *
           (gp_Vec(from, end.place).Dot(gp_Vec(surface.axis.Direction())) < 0 ? -1 : 1);
}

void HoleRings::joinNeighbours()
{
    for (std::size_t i = 0; i < m_ends.size(); ++i)
    {
        RingEnd& end = m_ends[i];
        const FaceSurface& surface = surfaceOf(end);
        if (end.neighbours.empty() || end.next >= 0)
        {
            continue;
        }
        const std::size_t region = end.neighbours.front().region;
        const int first = m_firstEnds[region];
        if (first < 0 || !areCoaxial(surface.axis, m_regions.all()[region].surface.axis, radiusOf(surface, end.place)))
        {
            continue;
        }
        for (const int number : {first, m_ends[static_cast<std::size_t>(first)].opposite})
        {
            // Both have the same edges.
            if (number >= 0 && number != static_cast<int>(i))
            {
                RingEnd& other = m_ends[static_cast<std::size_t>(number)];
                std::vector<int> left = end.loop.edges;
                std::vector<int> right = other.loop.edges;
                std::sort(left.begin(), left.end());
                std::sort(right.begin(), right.end());
                if (left == right)
                {
                    end.next = number;
                    other.next = static_cast<int>(i);
                }
            }
        }
    }
}

// A flat step, or a flat bottom, looks against the way into it; the narrower part behind the step goes on from there.
void HoleRings::joinAcrossSteps()
{
    struct Plane
    {
        std::vector<int> before;
        std::vector<int> behind;
    };
    std::map<std::size_t, Plane> planes; // by region
    for (std::size_t i = 0; i < m_ends.size(); ++i)
    {
        RingEnd& end = m_ends[i];
        const FaceSurface& surface = surfaceOf(end);
        const auto& neighbours = end.neighbours;
        const bool isLoose =
            surface.kind == Kind::Torus && end.opposite >= 0 && m_ends[static_cast<std::size_t>(end.opposite)].next < 0;
        if (end.next >= 0 || isLoose || neighbours.empty() ||
            std::any_of(neighbours.begin(), neighbours.end(),
                        [&](const auto& one) { return one.region != neighbours.front().region; }))
        {
            continue;
        }
        const std::size_t region = neighbours.front().region;
        const FaceSurface& other = m_regions.all()[region].surface;
        const gp_Vec way = outwards(end);
        if (other.kind == Kind::Plane && other.axis.Direction().IsParallel(surface.axis.Direction(), kSameDirection))
        {
            Plane& plane = planes[region];
            (gp_Vec(other.axis.Direction()).Dot(way) < 0 ? plane.before : plane.behind).push_back(static_cast<int>(i));
        }
        else if (other.kind == Kind::Sphere && other.isInner &&
                 gp_Lin(surface.axis).Distance(other.axis.Location()) <= kSameAxis * other.radius &&
                 closes(region, end))
        {
            end.bottom = static_cast<int>(region);
        }
    }
    for (const auto& [region, plane] : planes)
    {
        for (const int number : plane.before)
        {
            RingEnd& end = m_ends[static_cast<std::size_t>(number)];
            const auto next = std::find_if(plane.behind.begin(), plane.behind.end(), [&](int candidate) {
                const RingEnd& other = m_ends[static_cast<std::size_t>(candidate)];
                return other.next < 0 && areCoaxial(surfaceOf(end).axis, surfaceOf(other).axis,
                                                    radiusOf(surfaceOf(other), other.place), kSameStepAxis);
            });
            if (next != plane.behind.end())
            {
                end.next = *next;
                m_ends[static_cast<std::size_t>(*next)].next = number;
                end.step = m_ends[static_cast<std::size_t>(*next)].step = static_cast<int>(region);
            }
            else // a floor, whatever goes through it
            {
                end.bottom = static_cast<int>(region);
            }
        }
    }
}

// Whether the region has no other way out around the axis.
bool HoleRings::closes(std::size_t region, const RingEnd& end) const
{
    const std::vector<RegionLoop> loops = m_regions.loops(region, surfaceOf(end).axis);
    return std::count_if(loops.begin(), loops.end(), [](const RegionLoop& loop) { return loop.turns != 0; }) == 1;
}

// Where the axis leaves the body at an open end: a point of the surface around it, or else the middle of its edges.
gp_Pnt HoleRings::pierced(const RingEnd& end) const
{
    const FaceSurface& surface = surfaceOf(end);
    const double middle = (end.loop.low + end.loop.high) / 2;
    const double radius = radiusOf(surface, end.place);
    const bool isOne = std::all_of(end.neighbours.begin(), end.neighbours.end(), [&end](const auto& neighbour) {
        return neighbour.region == end.neighbours.front().region;
    });
    const double margin = isOne ? radius : kSameLength * radius;
    double best = middle;
    double distance = std::numeric_limits<double>::max();
    for (const FaceRegions::Neighbour& neighbour : end.neighbours)
    {
        for (const double along : crossings(surface.axis, m_regions.all()[neighbour.region].surface))
        {
            if (along > end.loop.low - margin && along < end.loop.high + margin && std::abs(along - middle) < distance)
            {
                best = along;
                distance = std::abs(along - middle);
            }
        }
    }
    return at(surface.axis, best);
}

std::vector<RingChain> HoleRings::chains() const
{
    std::vector<RingChain> chains;
    std::vector<bool> isKnown(m_ends.size(), false);
    for (std::size_t first = 0; first < m_ends.size(); ++first)
    {
        if (m_ends[first].next >= 0 || isKnown[first])
        {
            continue;
        }
        RingChain chain;
        bool hasWall = false;
        for (int entry = static_cast<int>(first); entry >= 0 && !isKnown[static_cast<std::size_t>(entry)];)
        {
            const RingEnd& from = end(entry);
            isKnown[static_cast<std::size_t>(entry)] = true;
            chain.push_back({from.region, entry, from.opposite});
            hasWall = hasWall || isWall(from.region);
            if (from.opposite < 0)
            {
                break;
            }
            isKnown[static_cast<std::size_t>(from.opposite)] = true;
            entry = end(from.opposite).next;
        }
        if (hasWall)
        {
            chains.push_back(std::move(chain));
        }
    }
    return chains;
}
