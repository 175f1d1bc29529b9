#pragma once

#include "capture/capture_writer.h"
#include "mp/wide.h"
#include "vrx_api/exchange/peek_envelope.h"

#include <cstddef>
#include <filesystem>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace record
{

/// Keeps what crosses in a capture, and which buffers were told of. Both directions may be kept at the same time. When
/// the capture cannot be written any more, says so once on standard error and goes on without it.
class Recording
{
public:
    /// Throws std::system_error when the capture cannot be created. `isVerbose` has it print a line per message.
    Recording(const std::filesystem::path& path, bool overwrite, bool isVerbose);

    void start(const std::vector<std::string>& command);

    /// With the content of the buffer that the message names.
    void fromHost(const mp::wstring& message);
    void fromTranslator(const mp::wstring& message);

    /// Bytes that are no message.
    void strayFromHost(std::string_view bytes);
    void strayFromTranslator(std::string_view bytes);

    void end(const std::set<mp::wstring>& unloaded, std::optional<int> exitCode, const std::string& howItEnded);

    /// The names of all buffers that the messages named.
    std::set<mp::wstring> told() const;

    /// Whether the translator has answered all commands.
    bool isAnswered() const;

private:
    void keepBuffer(const mp::wstring& name);
    template <class Operation>
    void write(const Operation& operation);
    void print(const char* sender, const vrx::MessageHead& head, std::size_t units) const;

    mutable std::mutex m_mutex;
    std::optional<capture::CaptureWriter> m_writer;
    std::set<mp::wstring> m_told;
    std::ptrdiff_t m_unanswered = 0;
    bool m_isVerbose;
};

} // namespace record
