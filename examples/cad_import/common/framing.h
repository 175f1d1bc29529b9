#pragma once

#include "mp/serializable.h"
#include "mp/wide.h"

#include <optional>

/// How messages follow each other on the pipes between host and translator.
///
/// A frame is one message: four bytes with the number of 16-bit units, least significant byte first, and then that many
/// units of the message's text, each least significant byte first. Nothing stands between frames. The host writes
/// `Command` frames to the translator's standard input. The translator answers on its standard output:
///   info    one `FerrantInfo`
///   ping    one `Result`
///   import  any number of envelopes, then one `Result`
///   other   one `Result`, an error
/// It ends when its standard input is closed, and when the modelling kernel has failed, behind that answer.
namespace framing
{

/// The next frame, or nothing when the other side has closed the pipe between two frames. Throws `std::runtime_error`
/// when the pipe ends within a frame, cannot be read, or holds a count that no message has.
std::optional<mp::wstring> read(int descriptor);

/// Throws `std::runtime_error` when the other side is gone; the process must ignore SIGPIPE.
void write(int descriptor, const mp::wstring& message);

mp::wstring toText(const mp::ISerializable& message);
void fromText(const mp::wstring& text, mp::ISerializable& message);

} // namespace framing
