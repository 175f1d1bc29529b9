#include "features/solid_lines.h"

#include <BRepBndLib.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <gp_Lin.hxx>

#include <algorithm>

namespace
{

const double kTolerance = 1e-6; // millimetres

} // namespace

SolidLines::SolidLines(const TopoDS_Shape& solid)
{
    for (TopExp_Explorer explorer(solid, TopAbs_FACE); explorer.More(); explorer.Next())
    {
        m_faces.push_back({TopoDS::Face(explorer.Current()), {}, nullptr});
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
        if (!face.intersector)
        {
            face.intersector = std::make_unique<IntCurvesFace_Intersector>(face.face, kTolerance);
        }
        face.intersector->Perform(gp_Lin(line), from, to);
        for (int i = 1; face.intersector->IsDone() && i <= face.intersector->NbPnt(); ++i)
        {
            crossings.push_back({face.intersector->WParameter(i), face.face});
        }
    }
    return crossings;
}
