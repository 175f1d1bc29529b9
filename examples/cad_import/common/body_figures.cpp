#include "common/body_figures.h"

#include <BRepBndLib.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

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

} // namespace

BodyFigures figuresOf(const TopoDS_Shape& shape)
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
    BRepBndLib::AddOptimal(shape, figures.box, false, false);
    return figures;
}

std::string figuresText(const BodyFigures& figures)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::setprecision(12) << figures.faces << " faces, " << figures.edges << " edges, " << figures.vertices
           << " vertices, area " << figures.area << ", volume " << figures.volume;
    if (figures.box.IsVoid())
    {
        return stream.str() + ", no box";
    }
    double bounds[6] = {};
    figures.box.Get(bounds[0], bounds[1], bounds[2], bounds[3], bounds[4], bounds[5]);
    // What is nothing beside the body is shown as nothing.
    const double noise = std::sqrt(figures.box.SquareExtent()) * 1e-12;
    for (double& bound : bounds)
    {
        bound = std::abs(bound) < noise ? 0 : bound;
    }
    stream << ", box (" << bounds[0] << ' ' << bounds[1] << ' ' << bounds[2] << ") to (" << bounds[3] << ' '
           << bounds[4] << ' ' << bounds[5] << ')';
    return stream.str();
}
