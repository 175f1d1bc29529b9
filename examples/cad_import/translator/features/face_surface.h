#pragma once

#include <TopoDS_Face.hxx>
#include <gp_Ax1.hxx>

/// Lengths are the same when they differ by no more than this part of the size to which they belong, such as a radius.
inline const double kSameLength = 1e-4;

/// Axes are one when they lie no further apart than this part of the radius around them, ...
inline const double kSameAxis = 1e-3;

/// ... those on both sides of a flat step no further than this one, since they are bored one after the other, ...
inline const double kSameStepAxis = 1e-2;

/// ... and directions when the angle between them is no larger, in radians.
inline const double kSameDirection = 1e-4;

/// The surface of a face as far as holes are made of it, whatever form the file gives it.
struct FaceSurface
{
    enum class Kind
    {
        Plane,
        Cylinder,
        Cone,
        Sphere,
        Torus,
        Other,
    };

    Kind kind = Kind::Other;
    gp_Ax1 axis;            // of a plane the outward normal of the solid, of a sphere the centre
    double radius = 0;      // of a cone that at the location of its axis
    double minorRadius = 0; // of a torus
    double slope = 0;       // of a cone: by how much the radius grows along the axis
    bool isInner = false;   // seen from inside: the outward normal of the solid points to the axis, or to the centre

    /// Of a cylinder or a cone, at a point of its axis.
    double radiusAt(const gp_Pnt& point) const;
};

FaceSurface surfaceOf(const TopoDS_Face& face);

/// Whether faces with these surfaces that meet at an edge are pieces of one.
bool areOne(const FaceSurface& left, const FaceSurface& right);

/// For what has about this radius, of which the tolerance is a part.
bool areCoaxial(const gp_Ax1& left, const gp_Ax1& right, double radius, double tolerance = kSameAxis);
