#pragma once

#include <Bnd_Box.hxx>
#include <IntCurvesFace_Intersector.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax1.hxx>

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

    /// In no order.
    std::vector<Crossing> of(const gp_Ax1& line) const;

private:
    struct Face
    {
        TopoDS_Face face;
        Bnd_Box box;
        std::unique_ptr<IntCurvesFace_Intersector> intersector; // made when needed
    };

    mutable std::vector<Face> m_faces;
};
