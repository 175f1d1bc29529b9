#include "pmi/drawing.h"

#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom_Plane.hxx>
#include <Poly_Triangulation.hxx>
#include <Precision.hxx>
#include <ShapeFix_Face.hxx>
#include <Standard_Failure.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <gp.hxx>
#include <gp_Pln.hxx>

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

TopoDS_Wire wireOf(const std::vector<gp_Pnt>& line, const gp_Pln& plane)
{
    BRepBuilderAPI_MakePolygon polygon;
    for (std::size_t i = 0; i + 1 < line.size(); ++i)
    {
        const gp_Vec off(plane.Axis().Direction().XYZ() *
                         (plane.Location().XYZ() - line[i].XYZ()).Dot(plane.Axis().Direction().XYZ()));
        polygon.Add(line[i].Translated(off));
    }
    polygon.Close();
    return polygon.Wire();
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
        TopoDS_Face face;
        const BRep_Builder builder;
        builder.MakeFace(face, new Geom_Plane(*plane), Precision::Confusion());
        for (const std::vector<gp_Pnt>& line : boundaries)
        {
            builder.Add(face, wireOf(line, *plane));
        }
        ShapeFix_Face fix(face); // tells holes from areas
        fix.Perform();
        const TopoDS_Shape areas = fix.Result();
        BRepMesh_IncrementalMesh(areas, kDeflection);
        for (TopExp_Explorer explorer(areas, TopAbs_FACE); explorer.More(); explorer.Next())
        {
            addTriangles(TopoDS::Face(explorer.Current()), drawing);
        }
    }
    catch (const Standard_Failure&)
    {
        return false; // the lines cross each other
    }
    return drawing.triangles.size() > before;
}
