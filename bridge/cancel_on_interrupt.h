#pragma once

#include "bridge/host_session.h"

namespace vrx::bridge
{

/// While there is one, SIGINT, SIGTERM and SIGHUP cancel this session instead of ending the process; on Windows,
/// Ctrl+C, Ctrl+Break and the closing of the console do. A signal that the process ignores stays ignored. The interrupt
/// may come to any thread; when this object is gone, none reaches the session any more.
class VRX_BRIDGE CancelOnInterrupt
{
public:
    /// The session lives longer. Throws std::logic_error while there is another one.
    explicit CancelOnInterrupt(HostSession& session);
    CancelOnInterrupt(const CancelOnInterrupt&) = delete;
    CancelOnInterrupt& operator=(const CancelOnInterrupt&) = delete;
    ~CancelOnInterrupt();

    /// Whether an interrupt has come. Stays true once it is.
    static bool wasInterrupted();
};

} // namespace vrx::bridge
