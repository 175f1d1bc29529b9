#include "pmi/feature_count.h"

#include <BRepAdaptor_Surface.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <gp_Lin.hxx>

#include <algorithm>
#include <set>

namespace
{

const double kSame = 1e-4; // millimetres

// Faces of one cylinder have one axis; those of another kind are of one surface when they stand at one place.
bool areOfOne(const BRepAdaptor_Surface& left, const BRepAdaptor_Surface& right)
{
    if (left.GetType() != right.GetType())
    {
        return false;
    }
    switch (left.GetType())
    {
    case GeomAbs_Cylinder:
        return gp_Lin(left.Cylinder().Axis()).Distance(right.Cylinder().Location()) < kSame &&
               left.Cylinder().Axis().Direction().IsParallel(right.Cylinder().Axis().Direction(), kSame);
    case GeomAbs_Cone:
        return left.Cone().Apex().Distance(right.Cone().Apex()) < kSame;
    case GeomAbs_Sphere:
        return left.Sphere().Location().Distance(right.Sphere().Location()) < kSame;
    case GeomAbs_Torus:
        return left.Torus().Location().Distance(right.Torus().Location()) < kSame;
    default:
        return true;
    }
}

bool shareAnEdge(const TopoDS_Face& left, const TopoDS_Face& right)
{
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(left, TopAbs_EDGE, edges);
    for (TopExp_Explorer explorer(right, TopAbs_EDGE); explorer.More(); explorer.Next())
    {
        if (edges.Contains(explorer.Current()))
        {
            return true;
        }
    }
    return false;
}

} // namespace

std::size_t featureCount(const std::vector<TopoDS_Face>& faces)
{
    std::vector<std::size_t> groups; // of each face
    for (std::size_t i = 0; i < faces.size(); ++i)
    {
        groups.push_back(i);
        for (std::size_t j = 0; j < i; ++j)
        {
            if (areOfOne(BRepAdaptor_Surface(faces[i], false), BRepAdaptor_Surface(faces[j], false)) &&
                shareAnEdge(faces[i], faces[j]))
            {
                const std::size_t joined = groups[j];
                const std::size_t group = groups[i];
                std::replace(groups.begin(), groups.end(), joined, group);
            }
        }
    }
    return std::set<std::size_t>(groups.begin(), groups.end()).size();
}
