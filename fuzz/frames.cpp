#include "bridge/frames.h"

#include "bridge/buffer_journal.h"
#include "bridge/buffer_name.h"
#include "fuzz/support.h"
#include "vrx_api/exchange/peek_envelope.h"

#include <sys/mman.h>
#include <unistd.h>

#include <string>

using vrx::bridge::FrameReader;
using vrx::bridge::Stream;

namespace
{

// A file in memory in place of a pipe: the same bytes for every reader, and as quick.
class MemoryFile
{
public:
    MemoryFile()
        : m_stream(vrx::bridge::OwnedHandle(::memfd_create("fuzz", MFD_CLOEXEC)))
    {
        fuzz::require(m_stream.isOpen());
    }

    const Stream& stream() const { return m_stream; }

    void fill(const std::string& bytes)
    {
        clear();
        m_stream.writeAll(bytes.data(), bytes.size());
        ::lseek(descriptor(), 0, SEEK_SET);
    }

    void clear() { fuzz::require(::ftruncate(descriptor(), 0) == 0 && ::lseek(descriptor(), 0, SEEK_SET) == 0); }

    std::string content() const
    {
        std::string bytes(static_cast<std::size_t>(::lseek(descriptor(), 0, SEEK_END)), '\0');
        fuzz::require(::pread(descriptor(), bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
        return bytes;
    }

private:
    int descriptor() const { return static_cast<int>(m_stream.handle().get()); }

    Stream m_stream;
};

// What is read as frames is written as the same bytes, and what is left is told.
void crossFrames(const std::string& input)
{
    static MemoryFile from;
    static MemoryFile to;
    from.fill(input);
    to.clear();
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
