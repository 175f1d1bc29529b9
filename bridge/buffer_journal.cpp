#include "bridge/buffer_journal.h"

#include "bridge/journal_files.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <sstream>

namespace vrx::bridge
{

namespace
{

// They stay the same as long as the process lives, so that buffers may be made in several threads.
const std::vector<NativeHandle>& keptJournals()
{
    static const std::vector<NativeHandle> journals = inheritedJournals();
    return journals;
}

// A name ends with a null character, which no name has.
void note(const mp::wstring& name)
{
    std::string entry = mp::toNarrow(name);
    entry.push_back('\0');
    for (const NativeHandle journal : keptJournals())
    {
        append(journal, entry);
    }
}

} // namespace

BufferJournal::BufferJournal()
    : m_file(makeJournalFile(m_inherited))
{
}

std::vector<mp::wstring> BufferJournal::names() const
{
    std::vector<mp::wstring> names;
    forEachName([&names](std::string_view name) { names.push_back(mp::toWide(name)); });
    return names;
}

void BufferJournal::forEachName(const std::function<void(std::string_view)>& use) const
{
    std::array<char, 4096> bytes; // NOLINT(cppcoreguidelines-pro-type-member-init): what is read is written before
    std::size_t kept = 0;         // of a name whose end is still to be read
    std::size_t count = 0;
    for (std::size_t offset = 0; offset < kLongestJournal; offset += count)
    {
        count = readAt(m_file, offset, &bytes[kept], bytes.size() - kept);
        if (count == 0)
        {
            return;
        }
        std::string_view rest(bytes.data(), kept + count);
        for (std::size_t end = rest.find('\0'); end != std::string_view::npos; end = rest.find('\0'))
        {
            if (end > 0)
            {
                use(rest.substr(0, end));
            }
            rest.remove_prefix(end + 1);
        }
        // No name is as long as that.
        kept = rest.size() < bytes.size() ? rest.size() : 0;
        std::memmove(bytes.data(), rest.data(), kept);
    }
}

void keepInheritedJournals()
{
    mp::setSharedBufferWatcher(keptJournals().empty() ? nullptr : note);
}

std::string journalsText(const std::vector<NativeHandle>& journals)
{
    std::string text;
    for (const NativeHandle journal : journals)
    {
        text += (text.empty() ? "" : " ") + std::to_string(journal) + ' ' + identityOf(journal);
    }
    return text;
}

std::vector<NativeHandle> inheritedJournals()
{
    const char* const value = std::getenv(kJournalsVariable);
    std::istringstream text(value == nullptr ? "" : value);
    std::vector<NativeHandle> journals;
    NativeHandle journal = kNoHandle;
    std::string identity;
    while (text >> journal >> identity)
    {
        if (identityOf(journal) == identity)
        {
            journals.push_back(journal);
        }
    }
    return journals;
}

} // namespace vrx::bridge
