#pragma once

#include "bridge/bridge_export.h"

#include <cstdint>
#include <utility>

namespace vrx::bridge
{

/// What the system calls an open file or pipe: a descriptor on POSIX, a handle on Windows.
using NativeHandle = std::intptr_t;

/// What stands in place of a handle where nothing is open.
constexpr NativeHandle kNoHandle = -1;

/// Owns an open file or pipe, and closes it. (`Handle` is a macro of a modelling kernel that translators use.)
class VRX_BRIDGE OwnedHandle
{
public:
    OwnedHandle() = default;
    /// Owns it from now on; `kNoHandle` for none.
    explicit OwnedHandle(NativeHandle native)
        : m_native(native)
    {
    }
    OwnedHandle(OwnedHandle&& other) noexcept
        : m_native(std::exchange(other.m_native, kNoHandle))
    {
    }
    OwnedHandle& operator=(OwnedHandle&& other) noexcept
    {
        std::swap(m_native, other.m_native);
        return *this;
    }
    ~OwnedHandle() { close(); }

    /// For calls of the system; still owned here.
    NativeHandle get() const { return m_native; }
    /// False for `kNoHandle`.
    bool isOpen() const { return m_native != kNoHandle; }
    /// Closes what is open; does nothing otherwise.
    void close() noexcept;

private:
    NativeHandle m_native = kNoHandle;
};

} // namespace vrx::bridge
