#pragma once

#include "bridge/stream.h"
#include "mp/serializable.h"
#include "mp/wide.h"

#include <optional>

namespace vrx::bridge
{

// How messages follow each other on the pipes between a host and its translator. A frame is one message: four bytes
// with the number of 16-bit units, least significant byte first, and then that many units of the message's text, each
// least significant byte first. Nothing stands between frames. The host writes to the translator's standard input:
//   info, ping  one `Command`
//   import      one `Command`
//   export      one `Command`, then any number of envelopes, then one `Result` as their end
// The translator answers on its standard output:
//   info        one `FerrantInfo`
//   import      any number of envelopes, then one `Result`
//   ping        one `Result`
//   export      any number of envelopes that tell of its progress, then one `Result`
//   other       one `Result`, an error
// It ends when its standard input is closed.

/// The next message, or nothing when the other side has closed the pipe between two messages. Throws StreamError, also
/// for a pipe that ends within a message, and for a count that no message has: 2^26 units are the most.
VRX_BRIDGE std::optional<mp::wstring> readFrame(const Stream& stream, const Wait& wait = {});

/// Throws StreamError when the other side is gone.
VRX_BRIDGE void writeFrame(const Stream& stream, const mp::wstring& message, const Wait& wait = {});

/// What the message writes of itself.
VRX_BRIDGE mp::wstring toText(const mp::ISerializable& message);

/// Has the message read itself, and throws what it throws.
VRX_BRIDGE void fromText(const mp::wstring& text, mp::ISerializable& message);

} // namespace vrx::bridge
