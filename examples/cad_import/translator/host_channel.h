#pragma once

#include "mp/serializable.h"
#include "mp/wide.h"
#include "vrx_api/vrx_api_exchange_object.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The translator's side of the two pipes. There is one in a process: it takes standard output for itself and turns
/// what others print there to standard error, so that no stray line gets between two frames.
class HostChannel
{
public:
    HostChannel();
    HostChannel(const HostChannel&) = delete;
    HostChannel& operator=(const HostChannel&) = delete;
    virtual ~HostChannel() = default;

    /// The next command's text, or nothing when the host has closed the pipe.
    static std::optional<mp::wstring> receive();

    /// An answer. The shared memory of which an import has told is the host's affair from here on.
    void send(const mp::ISerializable& message);

    /// In an envelope. When the host is gone, the shared memory of which it was told in this import is removed again.
    /// Throws behind the envelope when termination is due.
    virtual void send(const std::shared_ptr<vrx::IExchangeObject>& object);

    void message(const std::string& text);
    void log(const std::string& text);

private:
    void sendFrame(const mp::wstring& text);

    int m_output;
    std::vector<mp::wstring> m_told; // names of shared memory in the envelopes of the running import
};
