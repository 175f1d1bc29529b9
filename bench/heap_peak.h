#pragma once

#include <cstddef>

namespace bench
{

/// Watches what the process holds on its heap while the object lives; one at a time. Elsewhere than under glibc nothing
/// is counted and the peak stays 0.
class HeapPeak
{
public:
    HeapPeak();
    HeapPeak(const HeapPeak&) = delete;
    HeapPeak& operator=(const HeapPeak&) = delete;
    ~HeapPeak();

    /// The most bytes held at one time, beyond those held when the watch began.
    std::size_t bytes() const;
};

/// Keeps freed memory in the process from now on and touches this much of it, so that no measured step waits for pages.
void holdHeap(std::size_t bytes);

} // namespace bench
