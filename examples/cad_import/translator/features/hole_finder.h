#pragma once

#include "features/hole.h"

#include <TopoDS_Shape.hxx>
#include <gp_Ax1.hxx>

#include <vector>

struct SolidHoles
{
    std::vector<Hole> holes;
    std::vector<gp_Ax1> axes; // of all round faces, inner and outer ones
};

/// The holes of a solid, in the order of its faces; none of one that is too damaged.
///
/// What goes on in line with the same narrowest diameter behind a hollow is one hole. But when both pieces are bored
/// wider at the ends that look away from each other, they are two, which open there.
///
/// A hole that is open at both ends opens at the wider one. When both are equal, it opens where nothing of the body
/// stands before it. When that is so at both, it leads against the largest coordinate of its axis, such as downwards.
SolidHoles holesOf(const TopoDS_Shape& solid);
