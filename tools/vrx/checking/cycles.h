#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace checking
{

/// The edges that close a cycle of a graph, by their places in the list, in its order. Without them it has none. Of
/// several edges between the same two only the first counts.
std::vector<std::size_t> closingEdges(const std::vector<std::pair<std::uint64_t, std::uint64_t>>& edges);

} // namespace checking
