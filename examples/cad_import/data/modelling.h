#pragma once

#include <TopoDS_Edge.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax1.hxx>
#include <gp_Pnt.hxx>
#include <gp_Vec.hxx>

#include <functional>
#include <utility>
#include <vector>

/// The few modelling steps from which the parts of the vise are made. Lengths are millimetres. Each step throws
/// std::runtime_error when the kernel cannot do it, so that no damaged part gets into the file.
namespace modelling
{

using Profile = std::vector<std::pair<double, double>>;
using EdgeTest = std::function<bool(const TopoDS_Edge&)>;

TopoDS_Shape box(const gp_Pnt& low, const gp_Pnt& high);

TopoDS_Shape cylinder(const gp_Ax1& axis, double radius, double length);

TopoDS_Shape ball(const gp_Pnt& centre, double radius);

/// The closed polygon, swept along the vector.
TopoDS_Shape prism(const std::vector<gp_Pnt>& outline, const gp_Vec& sweep);

/// A prism of the closed polygon (x, z), from y = `yLow` to y = `yHigh`.
TopoDS_Shape prismAlongY(const Profile& profile, double yLow, double yHigh);

/// The solid of revolution of the closed polygon (x, radius) about the X axis.
TopoDS_Shape revolveAboutX(const Profile& profile);

/// The same about the Z axis, with the polygon (z, radius).
TopoDS_Shape revolveAboutZ(const Profile& profile);

/// A prism with a regular hexagon as its base, `width` across flats, along the axis.
TopoDS_Shape hexagonAlongZ(double zLow, double zHigh, double width);

TopoDS_Shape join(const TopoDS_Shape& shape, const TopoDS_Shape& tool);
TopoDS_Shape cut(const TopoDS_Shape& shape, const TopoDS_Shape& tool);

/// A through hole with a counterbore for a cap screw; `axis` starts in the middle of the counterbore's open end.
TopoDS_Shape counterboredHole(const gp_Ax1& axis, double radius, double length, double boreRadius, double boreDepth);

TopoDS_Shape fillet(const TopoDS_Shape& shape, double radius, const EdgeTest& wanted);
TopoDS_Shape chamfer(const TopoDS_Shape& shape, double distance, const EdgeTest& wanted);

/// Straight edges along the direction whose middle lies in the box between the two corners.
EdgeTest straightAlong(const gp_Dir& direction, const gp_Pnt& low, const gp_Pnt& high);

/// Any edge whose middle lies in the box.
EdgeTest within(const gp_Pnt& low, const gp_Pnt& high);

/// Circles whose edge's middle lies in the box.
EdgeTest circlesWithin(const gp_Pnt& low, const gp_Pnt& high);

/// The one valid solid that the shape holds.
TopoDS_Shape singleSolid(const TopoDS_Shape& shape, const char* partName);

} // namespace modelling
