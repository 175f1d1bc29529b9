#pragma once

#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace vrx
{

/// Leaves new elements unset when they are given no value, so that a large buffer is not zeroed before it is filled.
template <class T>
class UnsetAllocator : public std::allocator<T>
{
public:
    UnsetAllocator() = default;

    // Containers make from it the allocators of their own records, as MSVC's do in debug builds.
    template <class U>
    UnsetAllocator(const UnsetAllocator<U>&) noexcept // NOLINT(google-explicit-constructor): the standard asks for it
    {
    }

    // The standard allocator's own would make containers rebind to it.
    /// The allocator for another type.
    template <class U>
    struct rebind // NOLINT(readability-identifier-naming): the standard's name
    {
        /// It does not set its elements either.
        using other = UnsetAllocator<U>; // NOLINT(readability-identifier-naming)
    };

    /// Makes an element from values, or leaves its bytes as they are without any.
    template <class U, class... Values>
    void construct(U* element, Values&&... values)
    {
        if constexpr (sizeof...(Values) == 0)
        {
            ::new (static_cast<void*>(element)) U;
        }
        else
        {
            ::new (static_cast<void*>(element)) U(std::forward<Values>(values)...);
        }
    }
};

/// Bytes that cost nothing to make.
using Bytes = std::vector<char, UnsetAllocator<char>>;

} // namespace vrx
