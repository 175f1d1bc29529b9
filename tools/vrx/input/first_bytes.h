#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace input
{

/// The first plain bytes of a gzip or zlib stream, up to so many; fewer of a damaged one. What follows is not unpacked.
std::string firstPlainBytes(std::string_view compressed, std::size_t most);

} // namespace input
