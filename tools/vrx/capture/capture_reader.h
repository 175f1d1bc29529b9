#pragma once

#include "capture/capture.h"
#include "mp/wide.h"

#include <chrono>
#include <cstdint>
#include <istream>
#include <string>
#include <vector>

namespace capture
{

/// One frame with the parts of its kind; the others are empty.
struct Frame
{
    EFrame kind = EFrame::Start;
    std::chrono::microseconds time{0}; ///< Since the start of the recording.
    std::uint64_t place = 0;           ///< Where the frame begins in the file.

    std::string json;               ///< Start, End: in UTF-8.
    mp::wstring message;            ///< FromHost, FromTranslator.
    mp::wstring name;               ///< Buffer, MissingBuffer.
    std::vector<char> content;      ///< Buffer, StrayFromHost, StrayFromTranslator.
    std::vector<mp::wstring> names; ///< UnloadedBuffers.
};

/// Reads a capture from a stream for bytes that stands at its beginning. Nothing in it is believed: memory grows with
/// what really comes. All operations throw CaptureError, with the place, for what is damaged.
class CaptureReader
{
public:
    /// Reads the header. Refuses what is no capture, and a capture of a later major version.
    explicit CaptureReader(std::istream& stream);

    /// Reads the next frame of a known kind; false at the end of the capture.
    bool next(Frame& frame);

    /// True when the capture ended within a frame, as that of a recorder that was killed may.
    bool isCut() const { return m_isCut; }

    /// Goes on with the frame at a place. The stream must be able to go there.
    void goTo(std::uint64_t place);

private:
    bool readFrame(Frame& frame);
    bool readBytes(char* bytes, std::size_t size);
    bool readPayload(std::uint64_t size);

    std::istream& m_stream;
    std::uint64_t m_size; // of the whole capture, as the stream tells
    std::vector<char> m_payload;
    std::uint64_t m_place = 0;
    bool m_isCut = false;
};

} // namespace capture
