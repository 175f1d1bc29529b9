#include "features/solid_lines.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepBndLib.hxx>
#include <ElCLib.hxx>
#include <ElSLib.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <gp_Pln.hxx>

#include <algorithm>
#include <cmath>
#include <optional>

namespace
{

const double kTolerance = 1e-6; // millimetres
const double kParallel = 1e-12; // the sine of the angle between a line and a plane that never meet

std::optional<double> placeOn(const gp_Pln& plane, const gp_Lin& line)
{
    const double slope = line.Direction().Dot(plane.Axis().Direction());
    if (std::abs(slope) < kParallel)
    {
        return std::nullopt;
    }
    return gp_Vec(line.Location(), plane.Location()).Dot(gp_Vec(plane.Axis().Direction())) / slope;
}

} // namespace

SolidLines::SolidLines(const TopoDS_Shape& solid)
{
    for (TopExp_Explorer explorer(solid, TopAbs_FACE); explorer.More(); explorer.Next())
    {
        m_faces.push_back({TopoDS::Face(explorer.Current()), {}, nullptr, nullptr});
        BRepBndLib::Add(m_faces.back().face, m_faces.back().box);
    }
}

std::vector<SolidLines::Crossing> SolidLines::of(const gp_Ax1& line, double from, double to,
                                                 const std::vector<TopoDS_Face>& without) const
{
    Bnd_Box part;
    part.Add(line.Location().Translated(gp_Vec(line.Direction()) * from));
    part.Add(line.Location().Translated(gp_Vec(line.Direction()) * to));
    std::vector<Crossing> crossings;
    for (Face& face : m_faces)
    {
        if (face.box.IsVoid() || face.box.IsOut(part) || face.box.IsOut(gp_Lin(line)) ||
            std::any_of(without.begin(), without.end(),
                        [&face](const TopoDS_Face& other) { return other.IsSame(face.face); }))
        {
            continue;
        }
        for (const double place : placesOn(face, gp_Lin(line), from, to))
        {
            crossings.push_back({place, face.face});
        }
    }
    return crossings;
}

std::vector<double> SolidLines::placesOn(Face& face, const gp_Lin& line, double from, double to)
{
    const BRepAdaptor_Surface surface(face.face, false);
    if (surface.GetType() == GeomAbs_Plane)
    {
        // The intersector works out the outline for each line anew, which takes long for a plane with many holes.
        const std::optional<double> place = placeOn(surface.Plane(), line);
        if (!place || !(*place >= from && *place <= to)) // nor that of a damaged plane, which is no number
        {
            return {};
        }
        if (!face.outline)
        {
            face.outline = std::make_unique<BRepTopAdaptor_FClass2d>(face.face, kTolerance);
        }
        double u = 0;
        double v = 0;
        ElSLib::Parameters(surface.Plane(), ElCLib::Value(*place, line), u, v);
        const bool isOutside = face.outline->Perform(gp_Pnt2d(u, v)) == TopAbs_OUT;
        return isOutside ? std::vector<double>() : std::vector<double>{*place};
    }
    if (!face.intersector)
    {
        face.intersector = std::make_unique<IntCurvesFace_Intersector>(face.face, kTolerance);
    }
    face.intersector->Perform(line, from, to);
    std::vector<double> places;
    for (int i = 1; face.intersector->IsDone() && i <= face.intersector->NbPnt(); ++i)
    {
        places.push_back(face.intersector->WParameter(i));
    }
    return places;
}
