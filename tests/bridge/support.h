#pragma once

#include "bridge/bridge.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"
#include "tests/support/child_process.h"

#include <algorithm>
#include <string>
#include <vector>

namespace test
{

/// How many of the buffers in a journal are still in the system.
inline std::size_t countOfLeft(const std::vector<mp::wstring>& names)
{
    return static_cast<std::size_t>(std::count_if(names.begin(), names.end(), [](const mp::wstring& name) {
        return mp::SharedBuffer<char>().openExisting(name);
    }));
}

/// What became of a host and its translator.
struct Road
{
    std::string told;     ///< The host's output.
    std::size_t made = 0; ///< Shared buffers.
    std::size_t left = 0; ///< Those that are still in the system.
};

/// Runs a host of this manner with a translator of these steps.
inline Road road(const std::string& manner, const std::vector<std::string>& steps)
{
    std::vector<std::string> command = {VRX_BRIDGE_TEST_PEER, "host", manner};
    command.insert(command.end(), steps.begin(), steps.end());
    const vrx::bridge::BufferJournal journal;
    vrx::bridge::ChildProcess host(command, &journal);
    Road road;
    road.told = readAll(host.output());
    host.end(std::chrono::seconds(20));
    const std::vector<mp::wstring> names = journal.names();
    road.made = names.size();
    road.left = countOfLeft(names);
    return road;
}

} // namespace test
