#pragma once

#include <array>
#include <string>

class TopoDS_Shape;

/// What can be measured of a body, in the units of its coordinates.
struct BodyFigures
{
    int faces = 0;
    int edges = 0;
    int vertices = 0;
    double area = 0;
    double volume = 0;
    std::array<double, 3> centroid{}; // of the volume
    bool hasBox = false;
    std::array<double, 3> low{}; // the corners of the box
    std::array<double, 3> high{};
};

/// A box takes as long as all the rest where a body has faces of free form.
enum class EBox
{
    Without,
    With,
};

BodyFigures figuresOf(const TopoDS_Shape& shape, EBox box = EBox::With);

/// The figures on one line, numbers with twelve digits.
std::string figuresText(const BodyFigures& figures);
