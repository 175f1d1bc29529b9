#pragma once

#include "bridge/host_session.h"

namespace vrx::bridge
{

/// While there is one, SIGINT, SIGTERM and SIGHUP cancel this session instead of ending the process; on Windows,
/// Ctrl+C, Ctrl+Break and the closing of the console do. There is one at a time.
class VRX_BRIDGE CancelOnInterrupt
{
public:
    /// The session lives longer.
    explicit CancelOnInterrupt(HostSession& session);
    CancelOnInterrupt(const CancelOnInterrupt&) = delete;
    CancelOnInterrupt& operator=(const CancelOnInterrupt&) = delete;
    ~CancelOnInterrupt();

    /// Whether an interrupt has come. Stays true once it is.
    static bool wasInterrupted();
};

} // namespace vrx::bridge
