#pragma once

#include "bridge/bridge_export.h"

#include <stdexcept>

namespace vrx::bridge
{

/// A stream cannot be read or written, or ends within a message.
class VRX_BRIDGE StreamError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Nobody reads any more what is written to a stream.
class VRX_BRIDGE NoReader : public StreamError
{
public:
    using StreamError::StreamError;
};

/// What stands on a stream is no message.
class VRX_BRIDGE NoMessage : public StreamError
{
public:
    using StreamError::StreamError;
};

/// The deadline of a wait is over.
class VRX_BRIDGE TimedOut : public StreamError
{
public:
    using StreamError::StreamError;
};

/// The flag of a wait was set.
class VRX_BRIDGE Cancelled : public StreamError
{
public:
    using StreamError::StreamError;
};

} // namespace vrx::bridge
