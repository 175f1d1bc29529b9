// A host for tests: vrx_tool_test_host TRANSLATOR [ARGUMENT...]
// Asks for the description and for an import, and prints each message, without the buffer's name but with the size and
// the checksum of its content. Prints the same on all systems.

#include "bridge/child_process.h"
#include "bridge/frames.h"
#include "capture/capture_bytes.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"
#include "replay/buffer_name.h"
#include "vrx_api/exchange/peek_envelope.h"

#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

// Only what is in ASCII is the same in all code pages.
void print(const mp::wstring& message)
{
    for (const mp::wchar unit : message)
    {
        std::cout << (unit < 0x80 ? std::string(1, static_cast<char>(unit)) : '#' + std::to_string(unit) + ';');
    }
    std::cout << '\n';
}

void take(const mp::wstring& message, const mp::wstring& name)
{
    print(name.empty() ? message : replay::withBufferName(message, name, WIDE("*")));
    mp::SharedBuffer<char> buffer;
    if (!name.empty() && buffer.openExisting(name))
    {
        const mp::SharedCopy content = buffer.copy();
        std::cout << "  " << content.size() << " bytes, "
                  << capture::checksum(0, content.data(), static_cast<std::size_t>(content.size())) << '\n';
        buffer.setRemoveOnClose(true);
    }
}

int run(const std::vector<std::string>& command)
{
    vrx::bridge::ChildProcess translator(command);
    for (const mp::wchar* const asked : {WIDE("{\"command\": \"info\"}"), WIDE("{\"command\": \"import\"}")})
    {
        vrx::bridge::writeFrame(translator.input(), asked);
        bool isAnswered = false;
        while (!isAnswered)
        {
            const std::optional<mp::wstring> message = vrx::bridge::readFrame(translator.output());
            if (!message)
            {
                throw std::runtime_error("the translator died");
            }
            const vrx::MessageHead head = vrx::peekEnvelope(*message);
            take(*message, head.bufferName);
            isAnswered = head.kind == vrx::EMessageKind::Result || head.kind == vrx::EMessageKind::Info;
        }
    }
    translator.end(std::chrono::seconds(20));
    return translator.exitCode().value_or(1);
}

} // namespace

int main(int count, char** words)
{
    try
    {
        return run({words + 1, words + count});
    }
    catch (const std::exception& failure)
    {
        std::cerr << "vrx_tool_test_host: " << failure.what() << '\n';
        return 1;
    }
}
