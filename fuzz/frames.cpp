#include "bridge/frames.h"

#include "bridge/buffer_journal.h"
#include "bridge/buffer_name.h"
#include "fuzz/memory_file.h"
#include "fuzz/support.h"
#include "vrx_api/exchange/peek_envelope.h"

#include <algorithm>
#include <string>

using vrx::bridge::FrameReader;

namespace
{

// What is read as frames is written as the same bytes, and what is left is told.
void crossFrames(const std::string& input)
{
    static fuzz::MemoryFile from;
    static fuzz::MemoryFile to;
    from.fill(input);
    to.fill({});
    FrameReader reader(from.stream());
    try
    {
        while (const std::optional<mp::wstring> message = reader.read())
        {
            vrx::bridge::writeFrame(to.stream(), *message);
            vrx::peekEnvelope(*message);
        }
        fuzz::require(to.content() == input);
    }
    catch (const vrx::bridge::StreamError&)
    {
        const std::string read = to.content() + reader.rest();
        fuzz::require(!reader.rest().empty() && input.compare(0, read.size(), read) == 0);
    }
}

// A journal gives the names that were ended, whatever else stands in it.
void readJournal(const std::string& input)
{
    static const vrx::bridge::BufferJournal journal;
    const int file = static_cast<int>(journal.inherited());
    fuzz::require(::ftruncate(file, 0) == 0);
    fuzz::require(::write(file, input.data(), input.size()) == static_cast<ssize_t>(input.size()));
    const std::vector<mp::wstring> names = journal.names();
    fuzz::require(names.size() <= static_cast<std::size_t>(std::count(input.begin(), input.end(), '\0')));
    for (const mp::wstring& name : names)
    {
        fuzz::require(!name.empty() && name.find(mp::wchar{}) == mp::wstring::npos);
        fuzz::require(!vrx::bridge::isBufferName(name) || input.find(mp::toNarrow(name)) != std::string::npos);
    }
}

} // namespace

// Bytes on the pipe between the two processes, and in the journal that a child writes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(data, data + size);
    crossFrames(input);
    readJournal(input);
    return 0;
}
