#pragma once

#include "bridge/frames.h"
#include "bridge/stream.h"
#include "capture/capture_reader.h"
#include "parent_process.h"
#include "replay/recorded_exchanges.h"

#include <istream>
#include <optional>
#include <set>

namespace replay
{

/// A translator that answers a host's commands with what is in a capture. The buffers get new names.
class Replayer
{
public:
    /// `inRealTime` keeps the times between a command and its answers. Throws CaptureError for a capture that cannot be
    /// read.
    Replayer(std::istream& capture, bool inRealTime);

    /// Answers until the host has closed its side, and gives the exit code: 1 when the recorded translator ended
    /// without an answer.
    int run();

private:
    bool answerAll();
    void removeBuffers() const;
    std::optional<mp::wstring> nextMessage();
    void dropObjects();
    void dropMessages();
    void play(const Exchange& exchange);
    void refuse(const mp::wstring& command) const;

    capture::CaptureReader m_reader;
    RecordedExchanges m_exchanges;
    bool m_inRealTime;
    tool::ParentProcess m_host;
    vrx::bridge::Stream m_fromHost = vrx::bridge::Stream::standardInput();
    vrx::bridge::FrameReader m_messages{m_fromHost};
    vrx::bridge::Stream m_toHost = vrx::bridge::Stream::takeStandardOutput();
    std::optional<mp::wstring> m_nextCommand; // which was read already
    std::set<mp::wstring> m_told;
    bool m_isHostDone = false; // it closed its side
};

} // namespace replay
