#pragma once

#include <TopoDS_Face.hxx>

#include <cstddef>
#include <vector>

/// How many holes, pins or balls the faces make: pieces of one surface that meet at an edge count once. Two holes in
/// line are two.
std::size_t featureCount(const std::vector<TopoDS_Face>& faces);
