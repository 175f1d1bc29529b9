#include "bridge/buffer_journal.h"

#include "bridge/journal_files.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"

#include <cstdlib>
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
    const std::string content = contentOf(m_file);
    std::size_t begin = 0;
    for (std::size_t end = content.find('\0'); end != std::string::npos; end = content.find('\0', begin))
    {
        if (end > begin)
        {
            names.push_back(mp::toWide(content.substr(begin, end - begin)));
        }
        begin = end + 1;
    }
    return names;
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
