#pragma once

#include <BRepTopAdaptor_FClass2d.hxx>
#include <Bnd_Box.hxx>
#include <IntCurvesFace_Intersector.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax1.hxx>
#include <gp_Lin.hxx>

#include <memory>
#include <vector>

/// Where lines cross the faces of a solid.
class SolidLines
{
public:
    explicit SolidLines(const TopoDS_Shape& solid);

    struct Crossing
    {
        double along = 0; // the line, from its location
        TopoDS_Face face;
    };

    /// Those of a part of the line, but with none of these faces. In no order.
    std::vector<Crossing> of(const gp_Ax1& line, double from, double to,
                             const std::vector<TopoDS_Face>& without = {}) const;

    /// Far enough for any of its faces.
    static constexpr double kFarAway = 1e7; // millimetres

private:
    struct Face
    {
        TopoDS_Face face;
        Bnd_Box box;
        // One of these is made when it is needed.
        std::unique_ptr<IntCurvesFace_Intersector> intersector;
        std::unique_ptr<BRepTopAdaptor_FClass2d> outline; // of a plane
    };

    static std::vector<double> placesOn(Face& face, const gp_Lin& line, double from, double to);

    mutable std::vector<Face> m_faces;
};
