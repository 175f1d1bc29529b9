#pragma once

#include <TopoDS_Face.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

#include <vector>

/// A hole of a solid, in the words of common/mechanical_conventions.h, in millimetres and degrees.
struct Hole
{
    enum class Kind
    {
        Simple,
        Taper,
        CounterBore,
        CounterSink,
        CounterDrill,
    };

    enum class End
    {
        Blind,
        UpToLast,
        UpToNext,
    };

    Kind kind = Kind::Simple;
    End end = End::Blind;
    gp_Pnt center;
    gp_Dir direction;
    double diameter = 0;
    double depth = 0;
    double tipAngle = 0;
    double counterDiameter = 0;
    double counterDepth = 0;
    double angle = 0; // of the cone that the kind has
    double sinkDiameter = 0;

    std::vector<TopoDS_Face> walls;   // with all steps and cones, from the opening inwards
    std::vector<TopoDS_Face> bottom;  // of a blind one; a tip
    std::vector<TopoDS_Face> opening; // the faces around it
    std::vector<TopoDS_Face> exit;    // those around the other end, unless it is blind
};
