// A translator for the tests of the recorder: vrx_tool_test_peer [dies | hangs | prints]
// An import tells of a buffer and of one that is not there; one that dies ends before its result, with exit code 3. One
// that hangs reads nothing; one that prints writes a line after each answer.

#include "bridge/buffer_journal.h"
#include "bridge/frames.h"
#include "mp/shared_buffer.h"
#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/exchange/peek_envelope.h"

#include <chrono>
#include <exception>
#include <iostream>
#include <string>
#include <thread>

namespace
{

using vrx::bridge::Stream;

mp::wstring makeBuffer(const std::string& content)
{
    mp::wstring name = vrx::IExchangeObject::generateUUID();
    mp::SharedBuffer<char> buffer;
    buffer.open(name, false);
    buffer.write(content.data(), content.size());
    return name;
}

// With blanks, an escape and a key that no writer of ours makes, which a recorder keeps.
mp::wstring envelope(const mp::wstring& buffer)
{
    return WIDE("{ \"exchange_object_name\" : \"exc_scene\",\t\"x\\u0041\": \"y\", "
                "\"binary\":true,\"exchange_object_data\": \"") +
           buffer + WIDE("\" }\n");
}

bool hasWord(const mp::wstring& text, const mp::wchar* word)
{
    return text.find(word) != mp::wstring::npos;
}

int serve(const std::string& manner)
{
    if (manner == "hangs")
    {
        std::this_thread::sleep_for(std::chrono::minutes(1));
    }
    const Stream host = Stream::standardInput();
    const Stream toHost = Stream::standardOutput();
    int count = 0;
    while (const auto command = vrx::bridge::readFrame(host))
    {
        if (hasWord(*command, WIDE("\"import\"")))
        {
            ++count;
            vrx::bridge::writeFrame(toHost, envelope(makeBuffer(std::string(70000, static_cast<char>('a' + count)))));
            vrx::bridge::writeFrame(toHost, envelope(WIDE("00000000-0000-4000-8000-000000000000")));
            if (manner == "dies")
            {
                makeBuffer("nobody is told of this");
                return 3;
            }
        }
        if (hasWord(*command, WIDE("\"export\"")))
        {
            std::optional<mp::wstring> message;
            do
            {
                message = vrx::bridge::readFrame(host);
            } while (message && vrx::peekEnvelope(*message).kind != vrx::EMessageKind::Result);
        }
        vrx::bridge::writeFrame(toHost, WIDE("{\"code\":\"ok\", \"message\":\"\xD800\"}"));
        if (manner == "prints")
        {
            toHost.writeAll("a stray line\n", 13);
        }
    }
    return 0;
}

} // namespace

int main(int count, char** words)
{
    try
    {
        vrx::bridge::keepInheritedJournals();
        return serve(count > 1 ? words[1] : "");
    }
    catch (const std::exception& failure)
    {
        std::cerr << "vrx_tool_test_peer: " << failure.what() << '\n';
        return 1;
    }
}
