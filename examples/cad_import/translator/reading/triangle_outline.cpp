#include "reading/triangle_outline.h"

#include <cstddef>

void TriangleOutline::add(int a, int b, int c)
{
    if (a != b && b != c && c != a)
    {
        add({a, b});
        add({b, c});
        add({c, a});
    }
}

void TriangleOutline::addStrip(const std::vector<int>& points)
{
    for (std::size_t i = 2; i < points.size(); ++i)
    {
        const bool odd = i % 2 == 1; // every other triangle of a strip is turned
        add(points[odd ? i - 1 : i - 2], points[odd ? i - 2 : i - 1], points[i]);
    }
}

void TriangleOutline::addFan(const std::vector<int>& points)
{
    for (std::size_t i = 2; i < points.size(); ++i)
    {
        add(points[0], points[i - 1], points[i]);
    }
}

void TriangleOutline::add(const Edge& edge)
{
    if (m_edges.erase({edge.second, edge.first}) == 0)
    {
        m_edges.insert(edge);
    }
}

std::vector<std::vector<int>> TriangleOutline::lines() const
{
    std::vector<std::vector<int>> lines;
    std::set<Edge> edges = m_edges;
    while (!edges.empty())
    {
        std::vector<int> line = {edges.begin()->first};
        for (auto next = edges.begin(); next != edges.end() && next->first == line.back();
             next = edges.lower_bound({line.back(), 0}))
        {
            line.push_back(next->second);
            edges.erase(next);
        }
        lines.push_back(line);
    }
    return lines;
}
