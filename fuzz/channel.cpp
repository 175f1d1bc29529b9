#include "bridge/translator_channel.h"
#include "fuzz/memory_file.h"
#include "fuzz/support.h"
#include "vrx_api/exchange/peek_envelope.h"

#include <unistd.h>

#include <exception>
#include <string>

using vrx::bridge::TranslatorChannel;

namespace
{

// Each line is a message; one that ends with a tab is the last, and cut short.
void sendLines(const std::string& lines, fuzz::MemoryFile& pipe)
{
    pipe.fill({});
    std::size_t begin = 0;
    bool isCut = false;
    while (begin < lines.size() && !isCut)
    {
        const std::size_t end = std::min(lines.find('\n', begin), lines.size());
        vrx::bridge::writeFrame(pipe.stream(), mp::toWide(lines.substr(begin, end - begin)));
        isCut = end > begin && lines[end - 1] == '\t';
        begin = end + 1;
    }
    if (isCut)
    {
        fuzz::require(::ftruncate(pipe.descriptor(), ::lseek(pipe.descriptor(), 0, SEEK_END) - 1) == 0);
    }
    pipe.rewind();
}

// Takes the objects of an export; one that cannot be taken ends it, as a translator does that answers with an error.
void receiveObjects(TranslatorChannel& channel)
{
    try
    {
        while (channel.receiveObject() != nullptr)
        {
        }
    }
    catch (const std::exception&)
    {
        return;
    }
}

// A translator that answers each command. Only the end of the pipe within a message may end it.
void serve(const vrx::ReadRules& rules)
{
    TranslatorChannel channel;
    channel.setReadRules(rules);
    try
    {
        while (const std::optional<vrx::Command> command = channel.receive())
        {
            if (command->type() == vrx::Command::EType::Export)
            {
                receiveObjects(channel);
            }
            channel.send(vrx::Result());
        }
    }
    catch (const vrx::bridge::StreamError&)
    {
        return;
    }
}

void requireResults(const fuzz::MemoryFile& output)
{
    vrx::bridge::FrameReader reader(output.stream());
    while (const std::optional<mp::wstring> text = reader.read())
    {
        fuzz::require(vrx::peekEnvelope(*text).kind == vrx::EMessageKind::Result);
    }
}

} // namespace

// What a host writes to its translator.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzz::MemoryFile input;
    static fuzz::MemoryFile output;
    sendLines(std::string(data, data + size), input);
    output.fill({});
    fuzz::require(::dup2(input.descriptor(), STDIN_FILENO) >= 0 && ::dup2(output.descriptor(), STDOUT_FILENO) >= 0);
    serve(size % 2 == 0 ? vrx::ReadRules::forUntrusted() : vrx::ReadRules());
    output.rewind();
    requireResults(output);
    return 0;
}
