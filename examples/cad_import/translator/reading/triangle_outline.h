#pragma once

#include <set>
#include <utility>
#include <vector>

/// The lines around a set of triangles: the edges that are of one triangle only.
class TriangleOutline
{
public:
    void add(int a, int b, int c);

    /// Three indices of points are a triangle; each further one is one with the two before it.
    void addStrip(const std::vector<int>& points);

    /// As a strip, but each further point is a triangle with the first point and the one before it.
    void addFan(const std::vector<int>& points);

    /// The edges as few lines: edges that follow each other are one.
    std::vector<std::vector<int>> lines() const;

private:
    using Edge = std::pair<int, int>;

    void add(const Edge& edge);

    std::set<Edge> m_edges; // each in the direction of its triangle
};
