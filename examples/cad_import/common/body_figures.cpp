#include "common/body_figures.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepBndLib.hxx>
#include <BRepGProp.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>
#include <utility>
#include <vector>

namespace
{

const double kNoise = 1e-12; // of the size of a body: no more than what is lost in computing

int count(const TopoDS_Shape& shape, TopAbs_ShapeEnum type)
{
    TopTools_IndexedMapOfShape map;
    TopExp::MapShapes(shape, type, map);
    return map.Extent();
}

// Of other surfaces the rough box is made from samples, and may be too small.
bool hasSureBox(const TopoDS_Face& face)
{
    switch (BRepAdaptor_Surface(face, false).GetType())
    {
    case GeomAbs_Plane:
    case GeomAbs_Cylinder:
    case GeomAbs_Cone:
    case GeomAbs_Sphere:
    case GeomAbs_Torus:
    case GeomAbs_BezierSurface:
    case GeomAbs_BSplineSurface:
        return true;
    default:
        return false;
    }
}

bool isWithin(const Bnd_Box& inner, const Bnd_Box& outer)
{
    if (outer.IsVoid())
    {
        return false;
    }
    const double noise = std::sqrt(outer.SquareExtent()) * kNoise;
    const gp_XYZ margin(noise, noise, noise);
    const gp_XYZ low = inner.CornerMin().XYZ() - outer.CornerMin().XYZ() + margin;
    const gp_XYZ high = outer.CornerMax().XYZ() - inner.CornerMax().XYZ() + margin;
    return std::min({low.X(), low.Y(), low.Z(), high.X(), high.Y(), high.Z()}) >= 0;
}

// The exact box of a face takes long, and most faces lie within that of the largest ones.
Bnd_Box boxOf(const TopoDS_Shape& shape)
{
    struct Part
    {
        TopoDS_Face face;
        Bnd_Box rough;
        double size = 0;
    };
    std::vector<Part> parts;
    for (TopExp_Explorer explorer(shape, TopAbs_FACE); explorer.More(); explorer.Next())
    {
        Part part{TopoDS::Face(explorer.Current()), {}, 0};
        BRepBndLib::Add(part.face, part.rough, false);
        if (!part.rough.IsVoid())
        {
            part.rough.SetGap(0); // the tolerance of the face
            const double size = part.rough.SquareExtent();
            part.size = std::isfinite(size) ? size : std::numeric_limits<double>::max();
            parts.push_back(part);
        }
    }
    std::stable_sort(parts.begin(), parts.end(),
                     [](const Part& left, const Part& right) { return left.size > right.size; });
    Bnd_Box box;
    for (const Part& part : parts)
    {
        if (!hasSureBox(part.face) || !isWithin(part.rough, box))
        {
            BRepBndLib::AddOptimal(part.face, box, false, false);
        }
    }
    for (const auto& [loose, holder] : {std::pair(TopAbs_EDGE, TopAbs_FACE), std::pair(TopAbs_VERTEX, TopAbs_EDGE)})
    {
        for (TopExp_Explorer explorer(shape, loose, holder); explorer.More(); explorer.Next())
        {
            BRepBndLib::AddOptimal(explorer.Current(), box, false, false);
        }
    }
    return box;
}

void addBox(const TopoDS_Shape& shape, BodyFigures& figures)
{
    const Bnd_Box box = boxOf(shape);
    figures.hasBox = !box.IsVoid();
    if (figures.hasBox)
    {
        box.Get(figures.low[0], figures.low[1], figures.low[2], figures.high[0], figures.high[1], figures.high[2]);
    }
}

} // namespace

BodyFigures figuresOf(const TopoDS_Shape& shape, EBox box)
{
    BodyFigures figures;
    figures.faces = count(shape, TopAbs_FACE);
    figures.edges = count(shape, TopAbs_EDGE);
    figures.vertices = count(shape, TopAbs_VERTEX);
    // A triangulation, which is not sent, must not count.
    GProp_GProps surface;
    BRepGProp::SurfaceProperties(shape, surface, false, false);
    figures.area = surface.Mass();
    GProp_GProps solid;
    BRepGProp::VolumeProperties(shape, solid, false, false, false);
    figures.volume = solid.Mass();
    const gp_Pnt centroid = solid.CentreOfMass();
    figures.centroid = {centroid.X(), centroid.Y(), centroid.Z()};
    if (box == EBox::With)
    {
        addBox(shape, figures);
    }
    return figures;
}

std::string figuresText(const BodyFigures& figures)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::setprecision(12) << figures.faces << " faces, " << figures.edges << " edges, " << figures.vertices
           << " vertices, area " << figures.area << ", volume " << figures.volume;
    if (!figures.hasBox)
    {
        return stream.str() + ", no box";
    }
    // What is nothing beside the body is shown as nothing.
    const double noise = std::hypot(figures.high[0] - figures.low[0], figures.high[1] - figures.low[1],
                                    figures.high[2] - figures.low[2]) *
                         kNoise;
    const auto shown = [noise](double bound) { return std::abs(bound) < noise ? 0 : bound; };
    const char* separator = ", box (";
    for (const std::array<double, 3>& corner : {figures.low, figures.high})
    {
        stream << separator << shown(corner[0]) << ' ' << shown(corner[1]) << ' ' << shown(corner[2]) << ')';
        separator = " to (";
    }
    return stream.str();
}
