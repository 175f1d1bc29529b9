#pragma once

#include <chrono>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

/// A capture: one file with all that crossed between a host and its translator, in the order in which it crossed.
/// docs/capture_format.md tells its bytes.
namespace capture
{

/// The kinds of frames. A reader passes over kinds that it does not know.
enum class EFrame : std::uint32_t
{
    Start = 1,               ///< What was started, and when: a JSON text in UTF-8.
    FromHost = 2,            ///< A message to the translator: its text in UTF-16, as it crossed.
    FromTranslator = 3,      ///< A message to the host.
    Buffer = 4,              ///< A buffer with its content, before the message that names it.
    MissingBuffer = 5,       ///< The name of a buffer that a message named and that was not there.
    UnloadedBuffers = 6,     ///< The names of the buffers that nobody had loaded when the recording ended.
    End = 7,                 ///< How the translator ended: a JSON text in UTF-8.
    StrayFromHost = 8,       ///< Bytes to the translator that are no message.
    StrayFromTranslator = 9, ///< Bytes to the host that are no message.
};

/// The file is no capture, or damaged.
class CaptureError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace capture
