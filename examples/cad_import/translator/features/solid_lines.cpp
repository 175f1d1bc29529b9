#include "features/solid_lines.h"

#include <BRepBndLib.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <gp_Lin.hxx>

namespace
{

const double kTolerance = 1e-6; // millimetres
const double kFarAway = 1e7;    // millimetres

} // namespace

SolidLines::SolidLines(const TopoDS_Shape& solid)
{
    for (TopExp_Explorer explorer(solid, TopAbs_FACE); explorer.More(); explorer.Next())
    {
        m_faces.push_back({TopoDS::Face(explorer.Current()), {}, nullptr});
        BRepBndLib::Add(m_faces.back().face, m_faces.back().box);
    }
}

std::vector<SolidLines::Crossing> SolidLines::of(const gp_Ax1& line) const
{
    std::vector<Crossing> crossings;
    for (Face& face : m_faces)
    {
        if (face.box.IsVoid() || face.box.IsOut(gp_Lin(line)))
        {
            continue;
        }
        if (!face.intersector)
        {
            face.intersector = std::make_unique<IntCurvesFace_Intersector>(face.face, kTolerance);
        }
        face.intersector->Perform(gp_Lin(line), -kFarAway, kFarAway);
        for (int i = 1; face.intersector->IsDone() && i <= face.intersector->NbPnt(); ++i)
        {
            crossings.push_back({face.intersector->WParameter(i), face.face});
        }
    }
    return crossings;
}
