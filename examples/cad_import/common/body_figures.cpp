#include "common/body_figures.h"

#include <BRepBndLib.hxx>
#include <BRepGProp.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>

namespace
{

int count(const TopoDS_Shape& shape, TopAbs_ShapeEnum type)
{
    TopTools_IndexedMapOfShape map;
    TopExp::MapShapes(shape, type, map);
    return map.Extent();
}

void addBox(const TopoDS_Shape& shape, BodyFigures& figures)
{
    Bnd_Box box;
    BRepBndLib::AddOptimal(shape, box, false, false);
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
                         1e-12;
    const auto shown = [noise](double bound) { return std::abs(bound) < noise ? 0 : bound; };
    const char* separator = ", box (";
    for (const std::array<double, 3>& corner : {figures.low, figures.high})
    {
        stream << separator << shown(corner[0]) << ' ' << shown(corner[1]) << ' ' << shown(corner[2]) << ')';
        separator = " to (";
    }
    return stream.str();
}
