#pragma once

#include <Bnd_Box.hxx>
#include <TopoDS_Shape.hxx>

#include <cstdint>
#include <string>

/// What can be measured of a body, in the units of its coordinates.
struct BodyFigures
{
    int faces = 0;
    int edges = 0;
    int vertices = 0;
    double area = 0;
    double volume = 0;
    Bnd_Box box;
};

BodyFigures figuresOf(const TopoDS_Shape& shape);

/// The figures on one line, numbers with twelve digits.
std::string figuresText(const BodyFigures& figures);
