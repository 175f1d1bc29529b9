#include "modelling.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepFilletAPI_MakeChamfer.hxx>
#include <BRepFilletAPI_MakeFillet.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <ShapeUpgrade_UnifySameDomain.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <gp_Ax2.hxx>
#include <gp_Lin.hxx>

#include <cmath>
#include <stdexcept>
#include <string>

namespace modelling
{

namespace
{

const double kPi = 3.14159265358979323846;

TopoDS_Shape face(const std::vector<gp_Pnt>& corners)
{
    BRepBuilderAPI_MakePolygon polygon;
    for (const gp_Pnt& corner : corners)
    {
        polygon.Add(corner);
    }
    polygon.Close();
    return BRepBuilderAPI_MakeFace(polygon.Wire()).Shape();
}

// Splits that a boolean operation leaves in a plane or cylinder would make the parts look patched.
TopoDS_Shape unified(const TopoDS_Shape& shape)
{
    ShapeUpgrade_UnifySameDomain unifier(shape);
    unifier.Build();
    return unifier.Shape();
}

template <class Operation>
TopoDS_Shape result(Operation& operation, const char* what)
{
    operation.Build();
    if (!operation.IsDone())
    {
        throw std::runtime_error(std::string("cannot ") + what);
    }
    return operation.Shape();
}

template <class Operation>
TopoDS_Shape dressed(Operation& operation, double size, const TopoDS_Shape& shape, const EdgeTest& wanted,
                     const char* what)
{
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(shape, TopAbs_EDGE, edges);
    int count = 0;
    for (int i = 1; i <= edges.Extent(); ++i)
    {
        const TopoDS_Edge& edge = TopoDS::Edge(edges(i));
        if (wanted(edge))
        {
            operation.Add(size, edge);
            ++count;
        }
    }
    if (count == 0)
    {
        throw std::runtime_error(std::string("no edge to ") + what);
    }
    return result(operation, what);
}

gp_Pnt middle(const TopoDS_Edge& edge)
{
    const BRepAdaptor_Curve curve(edge);
    return curve.Value((curve.FirstParameter() + curve.LastParameter()) / 2);
}

bool contains(const gp_Pnt& low, const gp_Pnt& high, const gp_Pnt& point)
{
    const double margin = 1e-6;
    for (int i = 1; i <= 3; ++i)
    {
        if (point.Coord(i) < low.Coord(i) - margin || point.Coord(i) > high.Coord(i) + margin)
        {
            return false;
        }
    }
    return true;
}

} // namespace

TopoDS_Shape box(const gp_Pnt& low, const gp_Pnt& high)
{
    return BRepPrimAPI_MakeBox(low, high).Shape();
}

TopoDS_Shape cylinder(const gp_Ax1& axis, double radius, double length)
{
    return BRepPrimAPI_MakeCylinder(gp_Ax2(axis.Location(), axis.Direction()), radius, length).Shape();
}

TopoDS_Shape ball(const gp_Pnt& centre, double radius)
{
    return BRepPrimAPI_MakeSphere(centre, radius).Shape();
}

TopoDS_Shape prism(const std::vector<gp_Pnt>& outline, const gp_Vec& sweep)
{
    return BRepPrimAPI_MakePrism(face(outline), sweep).Shape();
}

TopoDS_Shape prismAlongY(const Profile& profile, double yLow, double yHigh)
{
    std::vector<gp_Pnt> corners;
    for (const auto& [x, z] : profile)
    {
        corners.emplace_back(x, yLow, z);
    }
    return prism(corners, gp_Vec(0, yHigh - yLow, 0));
}

TopoDS_Shape revolveAboutX(const Profile& profile)
{
    std::vector<gp_Pnt> corners;
    for (const auto& [x, radius] : profile)
    {
        corners.emplace_back(x, 0, radius);
    }
    return BRepPrimAPI_MakeRevol(face(corners), gp::OX()).Shape();
}

TopoDS_Shape revolveAboutZ(const Profile& profile)
{
    std::vector<gp_Pnt> corners;
    for (const auto& [z, radius] : profile)
    {
        corners.emplace_back(radius, 0, z);
    }
    return BRepPrimAPI_MakeRevol(face(corners), gp::OZ()).Shape();
}

TopoDS_Shape hexagonAlongZ(double zLow, double zHigh, double width)
{
    const double corner = width / std::sqrt(3.0);
    std::vector<gp_Pnt> corners(6);
    for (std::size_t i = 0; i < corners.size(); ++i)
    {
        const double angle = static_cast<double>(i) * kPi / 3;
        corners[i] = gp_Pnt(corner * std::cos(angle), corner * std::sin(angle), zLow);
    }
    return prism(corners, gp_Vec(0, 0, zHigh - zLow));
}

TopoDS_Shape join(const TopoDS_Shape& shape, const TopoDS_Shape& tool)
{
    BRepAlgoAPI_Fuse operation(shape, tool);
    return unified(result(operation, "join"));
}

TopoDS_Shape cut(const TopoDS_Shape& shape, const TopoDS_Shape& tool)
{
    BRepAlgoAPI_Cut operation(shape, tool);
    return unified(result(operation, "cut"));
}

TopoDS_Shape counterboredHole(const gp_Ax1& axis, double radius, double length, double boreRadius, double boreDepth)
{
    return join(cylinder(axis, radius, length), cylinder(axis, boreRadius, boreDepth));
}

TopoDS_Shape fillet(const TopoDS_Shape& shape, double radius, const EdgeTest& wanted)
{
    BRepFilletAPI_MakeFillet operation(shape);
    return dressed(operation, radius, shape, wanted, "fillet");
}

TopoDS_Shape chamfer(const TopoDS_Shape& shape, double distance, const EdgeTest& wanted)
{
    BRepFilletAPI_MakeChamfer operation(shape);
    return dressed(operation, distance, shape, wanted, "chamfer");
}

EdgeTest straightAlong(const gp_Dir& direction, const gp_Pnt& low, const gp_Pnt& high)
{
    return [=](const TopoDS_Edge& edge) {
        const BRepAdaptor_Curve curve(edge);
        return curve.GetType() == GeomAbs_Line && curve.Line().Direction().IsParallel(direction, 1e-6) &&
               contains(low, high, middle(edge));
    };
}

EdgeTest within(const gp_Pnt& low, const gp_Pnt& high)
{
    return [=](const TopoDS_Edge& edge) { return contains(low, high, middle(edge)); };
}

EdgeTest circlesWithin(const gp_Pnt& low, const gp_Pnt& high)
{
    return [=](const TopoDS_Edge& edge) {
        return BRepAdaptor_Curve(edge).GetType() == GeomAbs_Circle && contains(low, high, middle(edge));
    };
}

TopoDS_Shape singleSolid(const TopoDS_Shape& shape, const char* partName)
{
    TopTools_IndexedMapOfShape solids;
    TopExp::MapShapes(shape, TopAbs_SOLID, solids);
    if (solids.Extent() != 1 || !BRepCheck_Analyzer(solids(1)).IsValid())
    {
        throw std::runtime_error(std::string(partName) + " is not one valid solid");
    }
    return solids(1);
}

} // namespace modelling
