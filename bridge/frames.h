#pragma once

#include "bridge/stream.h"
#include "mp/serializable.h"
#include "mp/wide.h"

#include <cstddef>
#include <optional>
#include <string>

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
// It ends when its standard input is closed. One that ends earlier closes its standard output and waits for that,
// before it removes what nobody has loaded: the host closes the pipe when it has read to the end and loaded what it
// wants.

/// Reads one message after the other.
class VRX_BRIDGE FrameReader
{
public:
    /// The stream lives longer than the reader.
    explicit FrameReader(const Stream& stream)
        : m_stream(stream)
    {
    }

    /// The next message, or nothing when the other side has closed the pipe between two messages. Throws StreamError,
    /// also for a pipe that ends within a message, and NoMessage for a count that no message has: 2^26 units are the
    /// most. After TimedOut and Cancelled the next call goes on where this one was left.
    std::optional<mp::wstring> read(const Wait& wait = {});

    /// The bytes that were read and are no whole message.
    const std::string& rest() const { return m_bytes; }

private:
    bool fill(std::size_t size, const Wait& wait);

    const Stream& m_stream;
    std::string m_bytes; // what has arrived of the message
};

/// One message, for those who read no second one after a wait that was given up.
VRX_BRIDGE std::optional<mp::wstring> readFrame(const Stream& stream, const Wait& wait = {});

/// Throws StreamError when the other side is gone, and std::length_error for more than 2^26 units.
VRX_BRIDGE void writeFrame(const Stream& stream, const mp::wstring& message, const Wait& wait = {});

/// What the message writes of itself.
VRX_BRIDGE mp::wstring toText(const mp::ISerializable& message);

/// Has the message read itself, and throws what it throws.
VRX_BRIDGE void fromText(const mp::wstring& text, mp::ISerializable& message);

} // namespace vrx::bridge
