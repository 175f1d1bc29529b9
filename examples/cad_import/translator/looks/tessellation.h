#pragma once

#include "vrx_api/vrx_api_exchange_visualization.h"

#include <Adaptor3d_Curve.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <gp_Pnt.hxx>

#include <memory>
#include <vector>

/// Turns the kernel's shapes into arrays for the scene.
namespace tessellation
{

/// Gives all faces of the shape their triangles, fine enough to be looked at.
void mesh(const TopoDS_Shape& shape);

/// The triangles of a meshed face, or null where the mesher made none.
std::shared_ptr<vrx::ExcVisuFace> face(const TopoDS_Face& face);

/// The polyline of an edge as the mesh of its faces has it, or null for an edge that is no line in space or that only
/// closes a face upon itself.
std::shared_ptr<vrx::ExcVisuEdge> edge(const TopoDS_Edge& edge);

/// Points along a curve, near enough to each other for a drawing.
std::vector<gp_Pnt> points(const Adaptor3d_Curve& curve);

/// A line through points.
std::shared_ptr<vrx::ExcVisuEdge> polyline(const std::vector<gp_Pnt>& points);

} // namespace tessellation
