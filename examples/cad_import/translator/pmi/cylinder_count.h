#pragma once

#include <TopoDS_Face.hxx>

#include <cstddef>
#include <vector>

/// How many cylinders, cones, spheres or tori the faces are on: pieces of one surface count once.
std::size_t cylinderCount(const std::vector<TopoDS_Face>& faces);
