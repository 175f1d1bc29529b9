#include "features/face_regions.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRep_Tool.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Vertex.hxx>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <unordered_map>
#include <utility>

namespace
{

const int kSteps = 16; // along an edge that is no line, enough for a full turn
const double kFullTurn = 6.28318530717958647692;

/// Numbers that are put together, step by step.
class Groups
{
public:
    explicit Groups(std::size_t count)
        : m_parents(count)
    {
        std::iota(m_parents.begin(), m_parents.end(), std::size_t(0));
    }

    std::size_t of(std::size_t element)
    {
        while (m_parents[element] != element)
        {
            m_parents[element] = m_parents[m_parents[element]];
            element = m_parents[element];
        }
        return element;
    }

    void join(std::size_t left, std::size_t right) { m_parents[of(left)] = of(right); }

private:
    std::vector<std::size_t> m_parents;
};

struct EdgeUse
{
    int edge;
    bool isReversed;
    std::size_t face;
};

std::vector<EdgeUse> edgesOf(const TopoDS_Face& face, std::size_t number, TopTools_IndexedMapOfShape& edges)
{
    std::vector<EdgeUse> uses;
    for (TopExp_Explorer explorer(face, TopAbs_EDGE); explorer.More(); explorer.Next())
    {
        const TopoDS_Edge& edge = TopoDS::Edge(explorer.Current());
        if (!BRep_Tool::Degenerated(edge) && edge.Orientation() <= TopAbs_REVERSED)
        {
            uses.push_back({edges.Add(edge) - 1, edge.Orientation() == TopAbs_REVERSED, number});
        }
    }
    return uses;
}

// Which edges of an outline hang together, by their places in it.
Groups connected(const std::vector<std::pair<int, bool>>& outline, const TopTools_IndexedMapOfShape& edges)
{
    Groups groups(outline.size());
    TopTools_IndexedMapOfShape vertices;
    std::vector<std::size_t> firstAt; // of each vertex the first edge
    for (std::size_t i = 0; i < outline.size(); ++i)
    {
        for (TopExp_Explorer explorer(edges(outline[i].first + 1), TopAbs_VERTEX); explorer.More(); explorer.Next())
        {
            const auto vertex = static_cast<std::size_t>(vertices.Add(explorer.Current())) - 1;
            if (vertex == firstAt.size())
            {
                firstAt.push_back(i);
            }
            groups.join(i, firstAt[vertex]);
        }
    }
    return groups;
}

// Follows an edge around the axis of a frame, of which it gives the angle, and makes its loop as long as the edge is.
double follow(const std::vector<gp_Pnt>& points, const gp_Ax2& frame, RegionLoop& loop)
{
    double angle = 0;
    double last = 0;
    bool isFirst = true;
    for (const gp_Pnt& point : points)
    {
        const gp_Vec place(frame.Location(), point);
        const double along = place.Dot(gp_Vec(frame.Direction()));
        const double now = std::atan2(place.Dot(gp_Vec(frame.YDirection())), place.Dot(gp_Vec(frame.XDirection())));
        angle += isFirst ? 0 : std::remainder(now - last, kFullTurn);
        loop.low = std::min(loop.low, along);
        loop.high = std::max(loop.high, along);
        last = now;
        isFirst = false;
    }
    return angle;
}

} // namespace

FaceRegions::FaceRegions(const TopoDS_Shape& shell)
{
    TopTools_IndexedMapOfShape map;
    TopExp::MapShapes(shell, TopAbs_FACE, map);
    std::vector<FaceSurface> surfaces;
    std::vector<EdgeUse> uses;
    for (int i = 1; i <= map.Extent(); ++i)
    {
        const TopoDS_Face& face = TopoDS::Face(map(i));
        const std::vector<EdgeUse> own = edgesOf(face, surfaces.size(), m_edges);
        uses.insert(uses.end(), own.begin(), own.end());
        surfaces.push_back(surfaceOf(face));
    }
    std::vector<std::vector<std::size_t>> facesAt(static_cast<std::size_t>(m_edges.Extent()));
    for (const EdgeUse& use : uses)
    {
        facesAt[static_cast<std::size_t>(use.edge)].push_back(use.face);
    }
    Groups groups(surfaces.size());
    for (const std::vector<std::size_t>& faces : facesAt)
    {
        for (std::size_t i = 1; i < faces.size(); ++i)
        {
            if (areOne(surfaces[faces[0]], surfaces[faces[i]]))
            {
                groups.join(faces[0], faces[i]);
            }
        }
    }

    std::unordered_map<std::size_t, std::size_t> regions; // by group
    std::vector<std::size_t> regionOf;                    // by face
    for (std::size_t face = 0; face < surfaces.size(); ++face)
    {
        const std::size_t region = regions.insert({groups.of(face), m_regions.size()}).first->second;
        if (region == m_regions.size())
        {
            m_regions.push_back({surfaces[face], {}, {}});
        }
        m_regions[region].faces.push_back(TopoDS::Face(map(static_cast<int>(face) + 1)));
        regionOf.push_back(region);
    }
    m_users.resize(facesAt.size());
    m_points.resize(facesAt.size());
    for (const EdgeUse& use : uses)
    {
        const auto edge = static_cast<std::size_t>(use.edge);
        const std::size_t region = regionOf[use.face];
        m_users[edge].push_back({region, TopoDS::Face(map(static_cast<int>(use.face) + 1))});
        // Edges within a region, such as the seam of a cylinder, occur twice in it.
        if (std::count_if(facesAt[edge].begin(), facesAt[edge].end(),
                          [&](std::size_t face) { return regionOf[face] == region; }) == 1)
        {
            m_regions[region].outline.emplace_back(use.edge, use.isReversed);
        }
    }
}

const std::vector<gp_Pnt>& FaceRegions::pointsOf(int edge) const
{
    std::vector<gp_Pnt>& points = m_points[static_cast<std::size_t>(edge)];
    if (points.empty())
    {
        const BRepAdaptor_Curve curve(TopoDS::Edge(m_edges(edge + 1)));
        const int steps = curve.GetType() == GeomAbs_Line ? 1 : kSteps;
        for (int i = 0; i <= steps; ++i)
        {
            const double part = static_cast<double>(i) / steps;
            points.push_back(curve.Value(curve.FirstParameter() * (1 - part) + curve.LastParameter() * part));
        }
    }
    return points;
}

std::vector<RegionLoop> FaceRegions::loops(std::size_t region, const gp_Ax1& axis) const
{
    const std::vector<std::pair<int, bool>>& outline = m_regions[region].outline;
    Groups groups = connected(outline, m_edges);
    const gp_Ax2 frame(axis.Location(), axis.Direction());
    std::vector<RegionLoop> loops;
    std::vector<double> angles;
    std::unordered_map<std::size_t, std::size_t> loopOf; // by group
    for (std::size_t i = 0; i < outline.size(); ++i)
    {
        const auto& [edge, isReversed] = outline[i];
        const std::size_t loop = loopOf.insert({groups.of(i), loops.size()}).first->second;
        if (loop == loops.size())
        {
            loops.emplace_back();
            angles.push_back(0);
        }
        loops[loop].edges.push_back(edge);
        const double angle = follow(pointsOf(edge), frame, loops[loop]);
        angles[loop] += isReversed ? -angle : angle;
    }
    for (std::size_t i = 0; i < loops.size(); ++i)
    {
        loops[i].turns = std::isfinite(angles[i]) ? static_cast<int>(std::lround(angles[i] / kFullTurn)) : 0;
    }
    return loops;
}

std::vector<FaceRegions::Neighbour> FaceRegions::across(const std::vector<int>& edges, std::size_t region) const
{
    std::vector<Neighbour> found;
    for (const int edge : edges)
    {
        for (const Neighbour& user : m_users[static_cast<std::size_t>(edge)])
        {
            const bool isKnown = std::any_of(found.begin(), found.end(),
                                             [&user](const Neighbour& other) { return other.face.IsSame(user.face); });
            if (user.region != region && !isKnown)
            {
                found.push_back(user);
            }
        }
    }
    return found;
}
