#pragma once

#include "input/input.h"

#include <cstddef>
#include <functional>
#include <istream>
#include <memory>

namespace input
{

/// True when these bytes, the first eight of a file, are those of a capture.
bool isCapture(const char* bytes, std::size_t size);

/// Gives the messages of a capture. It is read twice, as its end tells which buffers nobody had loaded: each call of
/// `open` begins anew.
Recording readCapture(const std::function<std::unique_ptr<std::istream>()>& open,
                      const std::function<void(Item&)>& take, std::uint64_t limit);

} // namespace input
