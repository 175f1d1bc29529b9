#include "pmi/cylinder_count.h"

#include <BRepAdaptor_Surface.hxx>
#include <gp_Lin.hxx>

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

} // namespace

std::size_t cylinderCount(const std::vector<TopoDS_Face>& faces)
{
    std::vector<BRepAdaptor_Surface> found;
    for (const TopoDS_Face& face : faces)
    {
        const BRepAdaptor_Surface surface(face, false);
        bool isNew = true;
        for (const BRepAdaptor_Surface& other : found)
        {
            isNew = isNew && !areOfOne(surface, other);
        }
        if (isNew)
        {
            found.push_back(surface);
        }
    }
    return found.size();
}
