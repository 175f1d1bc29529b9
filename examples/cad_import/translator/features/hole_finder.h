#pragma once

#include "features/hole.h"

#include <TopoDS_Shape.hxx>
#include <gp_Ax1.hxx>

#include <vector>

struct SolidHoles
{
    std::vector<Hole> holes;
    std::vector<gp_Ax1> axes; // of all round faces, and which way they look does not matter
};

/// The holes of a solid, in the order of its faces; none of one that is too damaged.
///
/// What goes on in line with the same narrowest diameter behind a hollow is one hole; but when both are bored wider
/// from the ends that look away from each other, these are the openings of two. Otherwise the opening of a hole with
/// two is the wider one; of equal ones that which nothing of the body stands before; of two such ones that from which
/// the hole leads down, or else backwards or to the left: against the largest coordinate of the axis.
SolidHoles holesOf(const TopoDS_Shape& solid);
