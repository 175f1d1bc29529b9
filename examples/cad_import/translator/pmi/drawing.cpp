#include "pmi/drawing.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Tool.hxx>
#include <ElSLib.hxx>
#include <Poly_Triangulation.hxx>
#include <Standard_Failure.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Wire.hxx>
#include <gp.hxx>
#include <gp_Pln.hxx>
#include <gp_XY.hxx>

#include <algorithm>
#include <optional>
#include <utility>

namespace
{

const double kGap = 0.01;       // millimetres that a boundary may be open or off its plane
const double kDeflection = 0.1; // of no matter in a plane with straight edges

// The plane around which a closed line goes.
std::optional<gp_Pln> planeOf(const std::vector<gp_Pnt>& line)
{
    gp_XYZ normal;
    for (std::size_t i = 1; i < line.size(); ++i)
    {
        normal += (line[i - 1].XYZ() - line.front().XYZ()) ^ (line[i].XYZ() - line.front().XYZ());
    }
    return normal.Modulus() > gp::Resolution() ? std::optional<gp_Pln>(gp_Pln(line.front(), normal)) : std::nullopt;
}

bool canBound(const std::vector<gp_Pnt>& line, const gp_Pln& plane)
{
    return line.size() > 3 && line.front().IsEqual(line.back(), kGap) &&
           std::all_of(line.begin(), line.end(),
                       [&plane](const gp_Pnt& point) { return plane.Distance(point) <= kGap; });
}

// A closed line in the coordinates of its plane, without its last point, which is the first one.
class Loop
{
public:
    Loop(const std::vector<gp_Pnt>& line, const gp_Pln& plane)
    {
        for (std::size_t i = 0; i + 1 < line.size(); ++i)
        {
            double u = 0;
            double v = 0;
            ElSLib::Parameters(plane, line[i], u, v);
            m_points.emplace_back(u, v);
        }
    }

    bool holds(const Loop& other) const { return &other != this && holds(other.m_points.front()); }

    // Counter-clockwise around an area, clockwise around a hole.
    TopoDS_Wire wire(const gp_Pln& plane, bool isHole) const
    {
        BRepBuilderAPI_MakePolygon polygon;
        for (const gp_XY& point : m_points)
        {
            polygon.Add(ElSLib::Value(point.X(), point.Y(), plane));
        }
        polygon.Close();
        TopoDS_Wire wire = polygon.Wire();
        wire.Orientation((area() > 0) == isHole ? TopAbs_REVERSED : TopAbs_FORWARD);
        return wire;
    }

private:
    bool holds(const gp_XY& point) const
    {
        bool inside = false;
        for (std::size_t i = 0; i < m_points.size(); ++i)
        {
            const gp_XY& from = m_points[i];
            const gp_XY& to = m_points[(i + 1) % m_points.size()];
            const bool crosses = (from.Y() > point.Y()) != (to.Y() > point.Y());
            if (crosses && (to - from).Crossed(point - from) * (to.Y() - from.Y()) > 0)
            {
                inside = !inside;
            }
        }
        return inside;
    }

    double area() const
    {
        double area = 0;
        for (std::size_t i = 0; i < m_points.size(); ++i)
        {
            area += m_points[i].Crossed(m_points[(i + 1) % m_points.size()]) / 2;
        }
        return area;
    }

    std::vector<gp_XY> m_points;
};

// The faces between loops: those within an even number of others go around an area, the others around holes.
std::vector<TopoDS_Face> facesOf(const std::vector<Loop>& loops, const gp_Pln& plane)
{
    const auto depth = [&loops](const Loop& loop) {
        return std::count_if(loops.begin(), loops.end(), [&loop](const Loop& other) { return other.holds(loop); });
    };
    std::vector<TopoDS_Face> faces;
    for (const Loop& outer : loops)
    {
        const auto level = depth(outer);
        if (level % 2 != 0)
        {
            continue;
        }
        BRepBuilderAPI_MakeFace face(plane, outer.wire(plane, false));
        for (const Loop& inner : loops)
        {
            if (outer.holds(inner) && depth(inner) == level + 1)
            {
                face.Add(inner.wire(plane, true));
            }
        }
        faces.push_back(face.Face());
    }
    return faces;
}

void addTriangles(const TopoDS_Face& face, Drawing& drawing)
{
    TopLoc_Location location;
    const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, location);
    if (mesh.IsNull())
    {
        return;
    }
    const std::size_t first = drawing.vertices.size();
    for (int i = 1; i <= mesh->NbNodes(); ++i)
    {
        drawing.vertices.push_back(mesh->Node(i).Transformed(location));
    }
    for (int i = 1; i <= mesh->NbTriangles(); ++i)
    {
        std::array<std::size_t, 3> triangle{};
        for (int corner = 1; corner <= 3; ++corner)
        {
            triangle[static_cast<std::size_t>(corner - 1)] =
                first + static_cast<std::size_t>(mesh->Triangle(i).Value(corner) - 1);
        }
        drawing.triangles.push_back(triangle);
    }
}

} // namespace

bool fill(const std::vector<std::vector<gp_Pnt>>& boundaries, Drawing& drawing)
{
    const std::optional<gp_Pln> plane = boundaries.empty() ? std::nullopt : planeOf(boundaries.front());
    if (!plane || !std::all_of(boundaries.begin(), boundaries.end(),
                               [&plane](const std::vector<gp_Pnt>& line) { return canBound(line, *plane); }))
    {
        return false;
    }
    const std::size_t before = drawing.triangles.size();
    try
    {
        std::vector<Loop> loops;
        loops.reserve(boundaries.size());
        for (const std::vector<gp_Pnt>& line : boundaries)
        {
            loops.emplace_back(line, *plane);
        }
        for (const TopoDS_Face& face : facesOf(loops, *plane))
        {
            const BRepMesh_IncrementalMesh mesher(face, kDeflection); // works when it is made
            addTriangles(face, drawing);
        }
    }
    catch (const Standard_Failure&)
    {
        return false; // the lines cross each other
    }
    return drawing.triangles.size() > before;
}
