#pragma once

#include "bridge/bridge_export.h"

#include <cstdint>
#include <utility>

namespace vrx::bridge
{

/// What the system calls an open file or pipe: a descriptor on POSIX, a handle on Windows.
using NativeHandle = std::intptr_t;

constexpr NativeHandle kNoHandle = -1;

/// Owns an open file or pipe, and closes it.
class VRX_BRIDGE Handle
{
public:
    Handle() = default;
    explicit Handle(NativeHandle native)
        : m_native(native)
    {
    }
    Handle(Handle&& other) noexcept
        : m_native(std::exchange(other.m_native, kNoHandle))
    {
    }
    Handle& operator=(Handle&& other) noexcept
    {
        std::swap(m_native, other.m_native);
        return *this;
    }
    ~Handle() { close(); }

    NativeHandle get() const { return m_native; }
    bool isOpen() const { return m_native != kNoHandle; }
    void close() noexcept;

private:
    NativeHandle m_native = kNoHandle;
};

} // namespace vrx::bridge
