#include "bench/held_heap.h"

#include <malloc.h>

#include <memory>

namespace bench
{

void holdHeap(std::size_t bytes)
{
    constexpr std::size_t kPage = 4096;
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
    const std::unique_ptr<char[]> block(new char[bytes]);
    // A compiler must not see that nobody reads what is written.
    volatile char* const touched = block.get();
    for (std::size_t i = 0; i < bytes; i += kPage)
    {
        touched[i] = 1;
    }
}

} // namespace bench
