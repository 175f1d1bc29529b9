#pragma once

#include <cstdint>
#include <type_traits>

namespace vrx
{

/// True for the types of numbers and booleans that travel. The functions that take them are templates over just these,
/// so that no conversion leads a field of another type there.
template <class T>
inline constexpr bool isScalar =
    std::is_same_v<T, bool> || std::is_same_v<T, std::int32_t> || std::is_same_v<T, std::uint32_t> ||
    std::is_same_v<T, std::uint64_t> || std::is_same_v<T, double> || std::is_same_v<T, float>;

} // namespace vrx
