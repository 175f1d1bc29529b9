#pragma once

#include "features/face_surface.h"

#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <cstddef>
#include <limits>
#include <vector>

/// A part of the outline of a region, of edges that hang together.
struct RegionLoop
{
    std::vector<int> edges;                          // by their number in the shape
    int turns = 0;                                   // how often it goes around the axis in question
    double low = std::numeric_limits<double>::max(); // where it lies along the axis, from its location
    double high = std::numeric_limits<double>::lowest();
};

/// Faces that hang together and are pieces of one surface: CAD systems and kernels split surfaces as they like.
struct FaceRegion
{
    FaceSurface surface;
    std::vector<TopoDS_Face> faces;
    std::vector<std::pair<int, bool>> outline; // edges, and whether they run backwards
};

/// The faces of a shell as regions.
class FaceRegions
{
public:
    explicit FaceRegions(const TopoDS_Shape& shell);

    const std::vector<FaceRegion>& all() const { return m_regions; }

    std::vector<RegionLoop> loops(std::size_t region, const gp_Ax1& axis) const;

    struct Neighbour
    {
        std::size_t region = 0;
        TopoDS_Face face;
    };

    /// What lies across edges of the outline of a region, each face once.
    std::vector<Neighbour> across(const std::vector<int>& edges, std::size_t region) const;

private:
    const std::vector<gp_Pnt>& pointsOf(int edge) const;

    TopTools_IndexedMapOfShape m_edges;
    std::vector<FaceRegion> m_regions;
    std::vector<std::vector<Neighbour>> m_users;       // by edge
    mutable std::vector<std::vector<gp_Pnt>> m_points; // by edge; made when needed
};
