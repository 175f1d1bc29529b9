#pragma once

#include "bridge/buffer_journal.h"
#include "bridge/child_process.h"
#include "bridge/frames.h"
#include "bridge/stream.h"
#include "parent_process.h"
#include "record/recording.h"

#include <atomic>
#include <set>
#include <string>
#include <vector>

namespace record
{

/// Stands between a host and its translator: the translator for the one, the host for the other. Each message goes into
/// the recording and then on, as it came. When the translator ends, this side ends; when the host does, the translator
/// is ended, and what nobody will load is removed.
class Recorder
{
public:
    /// Starts the translator. Throws std::runtime_error when it cannot be started.
    explicit Recorder(const std::vector<std::string>& command);

    /// Passes messages on until the translator has ended; gives its exit code, 1 if it was killed. SIGTERM and SIGINT
    /// end the translator.
    int run(Recording& recording);

private:
    void passAnswers();
    void passMessages(vrx::bridge::FrameReader& answers);
    void passCommands();
    void watchHost() const;
    void endTranslator();
    bool hasTranslatorEnded();
    void dropCommands(vrx::bridge::FrameReader& commands);
    bool isHostGone() const;
    void removeBuffers() const;

    Recording* m_recording = nullptr; // while it runs
    tool::ParentProcess m_host;
    vrx::bridge::BufferJournal m_journal;
    vrx::bridge::Stream m_fromHost = vrx::bridge::Stream::standardInput();
    vrx::bridge::Stream m_toHost = vrx::bridge::Stream::takeStandardOutput();
    vrx::bridge::ChildProcess m_translator;
    std::set<mp::wstring> m_unloaded;
    std::atomic<bool> m_hostTakesNothing = false;
    std::atomic<bool> m_hasAllAnswers = false;
    std::atomic<bool> m_isDone = false;
};

} // namespace record
