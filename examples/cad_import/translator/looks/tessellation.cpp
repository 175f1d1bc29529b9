#include "looks/tessellation.h"

#include "common/scene_conventions.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepBndLib.hxx>
#include <BRepLProp_SLProps.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_CurveRepresentation.hxx>
#include <BRep_ListIteratorOfListOfCurveRepresentation.hxx>
#include <BRep_TEdge.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <GCPnts_TangentialDeflection.hxx>
#include <Poly_Polygon3D.hxx>
#include <Poly_PolygonOnTriangulation.hxx>
#include <Poly_Triangulation.hxx>
#include <Precision.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

namespace tessellation
{

namespace
{

const double kDeflectionShare = 0.001; // of the shape's diagonal
const double kAngle = 0.3;             // radians between neighbouring facets
const double kLineDeflection = 0.05;   // millimetres, of lines without faces

void append(std::vector<float>& numbers, const gp_XYZ& vector)
{
    for (int i = 1; i <= 3; ++i)
    {
        numbers.push_back(static_cast<float>(vector.Coord(i)));
    }
}

std::array<int, 3> nodesOf(const Poly_Triangulation& triangulation, int triangle, bool reversed)
{
    std::array<int, 3> nodes{};
    triangulation.Triangle(triangle).Get(nodes[0], nodes[1], nodes[2]);
    if (reversed)
    {
        std::swap(nodes[1], nodes[2]);
    }
    return nodes;
}

// The mean of the normals of the triangles around each node, weighted by their areas, for the turn of the face's
// surface.
std::vector<gp_XYZ> facetNormals(const Poly_Triangulation& triangulation)
{
    std::vector<gp_XYZ> normals(static_cast<std::size_t>(triangulation.NbNodes()), gp_XYZ(0, 0, 0));
    for (int i = 1; i <= triangulation.NbTriangles(); ++i)
    {
        const std::array<int, 3> nodes = nodesOf(triangulation, i, false);
        const gp_XYZ first = triangulation.Node(nodes[0]).XYZ();
        const gp_XYZ normal =
            (triangulation.Node(nodes[1]).XYZ() - first) ^ (triangulation.Node(nodes[2]).XYZ() - first);
        for (const int node : nodes)
        {
            normals[static_cast<std::size_t>(node - 1)] += normal;
        }
    }
    return normals;
}

// In the coordinates of the located face; those of the triangulation's nodes otherwise.
std::vector<float> normalsOf(const TopoDS_Face& face, const Poly_Triangulation& triangulation, const gp_Trsf& place)
{
    const bool reversed = face.Orientation() == TopAbs_REVERSED;
    const std::vector<gp_XYZ> facets = facetNormals(triangulation);
    BRepAdaptor_Surface surface(face, false);
    BRepLProp_SLProps properties(surface, 1, Precision::Confusion());
    std::vector<float> numbers;
    numbers.reserve(facets.size() * 3);
    for (int i = 1; i <= triangulation.NbNodes(); ++i)
    {
        gp_Vec normal(facets[static_cast<std::size_t>(i - 1)]);
        normal.Transform(place);
        if (triangulation.HasUVNodes())
        {
            const gp_Pnt2d parameters = triangulation.UVNode(i);
            properties.SetParameters(parameters.X(), parameters.Y());
            if (properties.IsNormalDefined())
            {
                normal = properties.Normal();
            }
        }
        const double length = normal.Magnitude();
        const double factor = length > 0 ? (reversed ? -1 : 1) / length : 0;
        append(numbers, normal.XYZ() * factor);
    }
    return numbers;
}

vrx::ExcVisuFace::Polygon trianglesOf(const Poly_Triangulation& triangulation, bool reversed)
{
    vrx::ExcVisuFace::Polygon triangles{scene_conventions::kTriangles, {}};
    triangles.indices.reserve(static_cast<std::size_t>(triangulation.NbTriangles()) * 3);
    for (int i = 1; i <= triangulation.NbTriangles(); ++i)
    {
        for (const int node : nodesOf(triangulation, i, reversed))
        {
            triangles.indices.push_back(node - 1);
        }
    }
    return triangles;
}

// Where a face meets itself, as along a cylinder, the kernel has an edge that nobody else takes for one.
bool isSeam(const TopoDS_Edge& edge)
{
    const Handle(BRep_TEdge) data = Handle(BRep_TEdge)::DownCast(edge.TShape());
    int curves = 0;
    bool closed = false;
    for (BRep_ListIteratorOfListOfCurveRepresentation it(data->Curves()); it.More(); it.Next())
    {
        curves += it.Value()->IsCurveOnSurface() ? 1 : 0;
        closed = closed || it.Value()->IsCurveOnClosedSurface();
    }
    return closed && curves == 1;
}

std::shared_ptr<vrx::ExcVisuEdge> polyline(std::vector<float> points)
{
    auto edge = std::make_shared<vrx::ExcVisuEdge>();
    std::vector<std::int32_t> indices(points.size() / 3);
    for (std::size_t i = 0; i < indices.size(); ++i)
    {
        indices[i] = static_cast<std::int32_t>(i);
    }
    edge->setPoints(std::move(points));
    edge->setLineIndices(std::move(indices));
    edge->setLineType(vrx::ExcVisuEdge::ELineType::LineStrip);
    return edge;
}

std::vector<gp_Pnt> pointsOf(const TopoDS_Edge& edge)
{
    std::vector<gp_Pnt> points;
    TopLoc_Location location;
    const Handle(Poly_Polygon3D) polygon = BRep_Tool::Polygon3D(edge, location);
    if (!polygon.IsNull())
    {
        for (const gp_Pnt& node : polygon->Nodes())
        {
            points.push_back(node.Transformed(location));
        }
        return points;
    }
    double first = 0;
    double last = 0;
    if (!BRep_Tool::Degenerated(edge) && !BRep_Tool::Curve(edge, first, last).IsNull())
    {
        points = tessellation::points(BRepAdaptor_Curve(edge));
    }
    return points;
}

} // namespace

void mesh(const TopoDS_Shape& shape)
{
    Bnd_Box box;
    BRepBndLib::Add(shape, box);
    if (box.IsVoid())
    {
        return;
    }
    const double deflection = std::max(std::sqrt(box.SquareExtent()) * kDeflectionShare, Precision::Confusion());
    BRepMesh_IncrementalMesh(shape, deflection, false, kAngle, true);
}

std::shared_ptr<vrx::ExcVisuFace> face(const TopoDS_Face& face)
{
    TopLoc_Location location;
    const Handle(Poly_Triangulation) triangulation = BRep_Tool::Triangulation(face, location);
    if (triangulation.IsNull() || triangulation->NbTriangles() == 0)
    {
        return nullptr;
    }
    std::vector<float> vertices;
    vertices.reserve(static_cast<std::size_t>(triangulation->NbNodes()) * 3);
    for (int i = 1; i <= triangulation->NbNodes(); ++i)
    {
        append(vertices, triangulation->Node(i).Transformed(location).XYZ());
    }
    auto result = std::make_shared<vrx::ExcVisuFace>();
    result->setVertices(std::move(vertices));
    result->setNormals(normalsOf(face, *triangulation, location));
    result->setPolygons({trianglesOf(*triangulation, face.Orientation() == TopAbs_REVERSED)});
    return result;
}

std::shared_ptr<vrx::ExcVisuEdge> edge(const TopoDS_Edge& edge)
{
    if (BRep_Tool::Degenerated(edge) || isSeam(edge))
    {
        return nullptr;
    }
    Handle(Poly_PolygonOnTriangulation) polygon;
    Handle(Poly_Triangulation) triangulation;
    TopLoc_Location location;
    BRep_Tool::PolygonOnTriangulation(edge, polygon, triangulation, location);
    std::vector<float> numbers;
    if (polygon.IsNull())
    {
        for (const gp_Pnt& point : pointsOf(edge))
        {
            append(numbers, point.XYZ());
        }
    }
    else
    {
        for (int i = 1; i <= polygon->NbNodes(); ++i)
        {
            append(numbers, triangulation->Node(polygon->Node(i)).Transformed(location).XYZ());
        }
    }
    return numbers.size() < 6 ? nullptr : polyline(std::move(numbers));
}

std::vector<gp_Pnt> points(const Adaptor3d_Curve& curve)
{
    std::vector<gp_Pnt> points;
    const GCPnts_TangentialDeflection line(curve, kAngle, kLineDeflection);
    for (int i = 1; i <= line.NbPoints(); ++i)
    {
        points.push_back(line.Value(i));
    }
    return points;
}

std::shared_ptr<vrx::ExcVisuEdge> polyline(const std::vector<gp_Pnt>& points)
{
    std::vector<float> numbers;
    numbers.reserve(points.size() * 3);
    for (const gp_Pnt& point : points)
    {
        append(numbers, point.XYZ());
    }
    return polyline(std::move(numbers));
}

} // namespace tessellation
