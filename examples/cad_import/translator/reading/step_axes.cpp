#include "reading/step_axes.h"

#include <StepGeom_CartesianPoint.hxx>
#include <StepGeom_Direction.hxx>
#include <gp.hxx>

#include <cmath>

namespace
{

gp_Dir directionOf(const Handle(StepGeom_Direction) & direction, const gp_Dir& otherwise)
{
    if (direction.IsNull() || direction->DirectionRatios().IsNull() || direction->NbDirectionRatios() != 3)
    {
        return otherwise;
    }
    const gp_XYZ ratios(direction->DirectionRatiosValue(1), direction->DirectionRatiosValue(2),
                        direction->DirectionRatiosValue(3));
    const double length = ratios.Modulus();
    return std::isfinite(length) && length > gp::Resolution() ? gp_Dir(ratios) : otherwise;
}

} // namespace

std::optional<gp_Ax3> stepAxes(const Handle(StepGeom_Axis2Placement3d) & placement, double lengthFactor)
{
    const Handle(StepGeom_CartesianPoint) location = placement.IsNull() ? nullptr : placement->Location();
    if (location.IsNull() || location->NbCoordinates() != 3)
    {
        return std::nullopt;
    }
    const gp_XYZ origin(location->CoordinatesValue(1), location->CoordinatesValue(2), location->CoordinatesValue(3));
    const gp_Dir z = directionOf(placement->HasAxis() ? placement->Axis() : nullptr, gp::DZ());
    const gp_Dir x = directionOf(placement->HasRefDirection() ? placement->RefDirection() : nullptr, gp::DX());
    const gp_Pnt place(origin * lengthFactor);
    return z.IsParallel(x, 1e-9) ? gp_Ax3(place, z) : gp_Ax3(place, z, x);
}
