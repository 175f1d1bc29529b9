#pragma once

#include <cstddef>

namespace bench
{

/// Keeps freed memory in the process from now on and touches this much of it, so that no measured step waits for pages.
void holdHeap(std::size_t bytes);

} // namespace bench
