#include "checking/cycles.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>

namespace checking
{

namespace
{

enum class EState
{
    New,
    Open, ///< On the way from a start to here.
    Done,
};

} // namespace

std::vector<std::size_t> closingEdges(const std::vector<std::pair<std::uint64_t, std::uint64_t>>& edges)
{
    // Sorted by both ends, the edges that leave a node stand together, and equal ones too.
    std::vector<std::size_t> order(edges.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&edges](std::size_t left, std::size_t right) { return edges[left] < edges[right]; });
    const auto isSame = [&edges](std::size_t left, std::size_t right) { return edges[left] == edges[right]; };
    order.erase(std::unique(order.begin(), order.end(), isSame), order.end());
    std::unordered_map<std::uint64_t, std::size_t> firstOf;
    for (std::size_t i = order.size(); i-- > 0;)
    {
        firstOf[edges[order[i]].first] = i;
    }

    std::vector<std::size_t> closing;
    std::unordered_map<std::uint64_t, EState> states;
    std::vector<std::pair<std::uint64_t, std::size_t>> way; // Each node with the next of its edges.
    const auto open = [&](std::uint64_t node) {
        states[node] = EState::Open;
        const auto first = firstOf.find(node);
        way.emplace_back(node, first == firstOf.end() ? order.size() : first->second);
    };
    for (const std::size_t start : order)
    {
        if (states[edges[start].first] == EState::New)
        {
            open(edges[start].first);
        }
        while (!way.empty())
        {
            auto& [node, next] = way.back();
            if (next == order.size() || edges[order[next]].first != node)
            {
                states[node] = EState::Done;
                way.pop_back();
                continue;
            }
            const std::size_t edge = order[next++];
            const EState state = states[edges[edge].second];
            if (state == EState::Open)
            {
                closing.push_back(edge);
            }
            else if (state == EState::New)
            {
                open(edges[edge].second);
            }
        }
    }
    std::sort(closing.begin(), closing.end());
    return closing;
}

} // namespace checking
