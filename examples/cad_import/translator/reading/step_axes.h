#pragma once

#include <StepGeom_Axis2Placement3d.hxx>
#include <gp_Ax3.hxx>

#include <optional>

/// The axes of a placement of a STEP file, with its origin in millimetres; none without an origin. Directions that are
/// missing or of no use are those that the format takes then.
std::optional<gp_Ax3> stepAxes(const Handle(StepGeom_Axis2Placement3d) & placement, double lengthFactor);
