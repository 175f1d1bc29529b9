#include "bench/heap_peak.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <cstdint>
#include <memory>

// Takes this much memory and touches every page of it.
static void touch(std::size_t bytes)
{
    constexpr std::size_t kPage = 4096;
    const std::unique_ptr<char[]> block(new char[bytes]);
    // A compiler must not see that nobody reads what is written.
    volatile char* const touched = block.get();
    for (std::size_t i = 0; i < bytes; i += kPage)
    {
        touched[i] = 1;
    }
}

#ifdef __GLIBC__

// glibc's own names of the functions that are replaced below.
extern "C"
{
    // NOLINTBEGIN(readability-identifier-naming)
    void* __libc_malloc(std::size_t size);
    void* __libc_calloc(std::size_t count, std::size_t size);
    void* __libc_realloc(void* block, std::size_t size);
    void __libc_free(void* block);
    // NOLINTEND(readability-identifier-naming)
}

namespace
{

bool isWatching = false;
std::int64_t heldBytes = 0;
std::int64_t peakBytes = 0;

void* taken(void* block)
{
    if (isWatching)
    {
        heldBytes += static_cast<std::int64_t>(malloc_usable_size(block));
        peakBytes = heldBytes > peakBytes ? heldBytes : peakBytes;
    }
    return block;
}

void given(void* block)
{
    if (isWatching)
    {
        heldBytes -= static_cast<std::int64_t>(malloc_usable_size(block));
    }
}

} // namespace

// The program's functions of these names stand before the C library's for the libraries that it loads, too.
extern "C"
{
    // NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)

    void* malloc(std::size_t size)
    {
        return taken(__libc_malloc(size));
    }

    void* calloc(std::size_t count, std::size_t size)
    {
        return taken(__libc_calloc(count, size));
    }

    void* realloc(void* block, std::size_t size)
    {
        given(block);
        return taken(__libc_realloc(block, size));
    }

    void free(void* block)
    {
        given(block);
        __libc_free(block);
    }

    // NOLINTEND(readability-inconsistent-declaration-parameter-name)
} // extern "C"

namespace bench
{

HeapPeak::HeapPeak()
{
    heldBytes = 0;
    peakBytes = 0;
    isWatching = true;
}

HeapPeak::~HeapPeak()
{
    isWatching = false;
}

std::size_t HeapPeak::bytes() const // NOLINT(readability-convert-member-functions-to-static)
{
    return static_cast<std::size_t>(peakBytes);
}

void holdHeap(std::size_t bytes)
{
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
    touch(bytes);
}

} // namespace bench

#else

namespace bench
{

HeapPeak::HeapPeak() = default;
HeapPeak::~HeapPeak() = default;

std::size_t HeapPeak::bytes() const
{
    return 0;
}

void holdHeap(std::size_t bytes)
{
    touch(bytes);
}

} // namespace bench

#endif
