#pragma once

#include "mp/serializable.h"
#include "mp/wide.h"
#include "vrx_api/vrx_api_exchange_object.h"

#include <memory>
#include <optional>
#include <string>

/// The translator's side of the two pipes. There is one in a process: it takes standard output for itself and turns
/// what others print there to standard error, so that no stray line gets between two frames.
class HostChannel
{
public:
    HostChannel();

    /// The next command's text, or nothing when the host has closed the pipe.
    static std::optional<mp::wstring> receive();

    void send(const mp::ISerializable& message) const;

    /// In an envelope. When the host is gone, the shared memory that the envelope names is removed again.
    void send(const std::shared_ptr<vrx::IExchangeObject>& object);

    void message(const std::string& text);
    void log(const std::string& text);

private:
    int m_output;
    // Test switch: the process kills itself when it has sent an object of the name in STEP_TRANSLATOR_DIE_AFTER.
    std::string m_dieAfter;
};
