#pragma once

#include "capture/capture_reader.h"
#include "mp/wide.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

namespace replay
{

/// A command and the answers to it.
struct Exchange
{
    mp::wstring command;
    std::chrono::microseconds begin{0};
    std::vector<std::uint64_t> places; ///< Of the translator's messages and, before each, its buffer.
    bool isAnswered = false;           ///< The translator came to its last answer.
    bool hasObjects = false;           ///< The host sent objects with it, and a result as their end.
    bool isUnknown = false;            ///< It is none that a translator must answer.
};

/// The type of a command as it stands in its text; empty for a message that is no command.
mp::wstring commandIn(const mp::wstring& message);

/// What is in a capture, by commands.
class RecordedExchanges
{
public:
    /// Reads the whole capture. Throws CaptureError.
    explicit RecordedExchanges(capture::CaptureReader& reader);

    /// The next exchange of this command; when none is left, the last one again. Null when there is none at all.
    const Exchange* next(const mp::wstring& command);

private:
    std::vector<Exchange> m_exchanges;
    std::map<mp::wstring, std::size_t> m_last; // the exchange that was given last, by its command
};

} // namespace replay
