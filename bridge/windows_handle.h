#pragma once

#include "bridge/handle.h"
#include "bridge/system_error_text.h"

#include <windows.h>

namespace vrx::bridge
{

inline HANDLE windowsHandle(NativeHandle native)
{
    return reinterpret_cast<HANDLE>(native); // NOLINT(performance-no-int-to-ptr): a number in the public headers
}

inline HANDLE windowsHandle(const OwnedHandle& handle)
{
    return windowsHandle(handle.get());
}

/// Takes what a function of the system gave, which some mark as failed by null.
inline OwnedHandle ownHandle(HANDLE handle)
{
    return OwnedHandle(handle == nullptr ? kNoHandle : reinterpret_cast<NativeHandle>(handle));
}

inline std::string lastErrorText(const std::string& what)
{
    return systemErrorText(what, static_cast<int>(GetLastError()));
}

} // namespace vrx::bridge
