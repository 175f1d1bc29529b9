#include "bridge/child_process.h"
#include "bridge/journal_files.h"
#include "bridge/windows_handle.h"
#include "mp/narrow.h"

#include <algorithm>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace vrx::bridge
{

namespace
{

[[noreturn]] void fail(const std::string& what)
{
    throw std::runtime_error(lastErrorText(what));
}

std::size_t backslashesAtEnd(const std::wstring& text)
{
    return text.size() - (text.find_last_not_of(L'\\') + 1);
}

// A word of a command line, such that the C runtime of the child makes the same word of it again: backslashes count
// double before a quotation mark, and only there.
std::wstring quoted(const std::wstring& word)
{
    std::wstring text = L"\"";
    for (const wchar_t unit : word)
    {
        text.append(unit == L'"' ? backslashesAtEnd(text) + 1 : 0, L'\\');
        text.push_back(unit);
    }
    return text.append(backslashesAtEnd(text), L'\\') + L'"';
}

std::wstring commandLine(const std::vector<std::string>& command)
{
    std::wstring line;
    for (const std::string& word : command)
    {
        line += (line.empty() ? L"" : L" ") + quoted(mp::toWide(word));
    }
    return line;
}

std::wstring upperName(const std::wstring& entry)
{
    std::wstring name = entry.substr(0, entry.find(L'=', 1));
    CharUpperBuffW(name.data(), static_cast<DWORD>(name.size()));
    return name;
}

struct FreeEnvironment
{
    void operator()(wchar_t* block) const noexcept { FreeEnvironmentStringsW(block); }
};

// The environment of this process, with the journals; sorted by names, as the system wants it.
std::wstring environmentWith(const std::vector<NativeHandle>& journals)
{
    std::vector<std::wstring> entries;
    const std::unique_ptr<wchar_t, FreeEnvironment> block(GetEnvironmentStringsW());
    for (const wchar_t* entry = block.get(); *entry != 0; entry += entries.back().size() + 1)
    {
        entries.emplace_back(entry);
    }
    const std::wstring name = mp::toWide(kJournalsVariable);
    entries.erase(std::remove_if(entries.begin(), entries.end(),
                                 [&name](const std::wstring& entry) { return upperName(entry) == name; }),
                  entries.end());
    if (!journals.empty())
    {
        entries.push_back(name + L'=' + mp::toWide(journalsText(journals)));
    }
    std::sort(entries.begin(), entries.end(),
              [](const std::wstring& a, const std::wstring& b) { return upperName(a) < upperName(b); });
    std::wstring text;
    for (const std::wstring& entry : entries)
    {
        text += entry;
        text.push_back(0);
    }
    text.push_back(0);
    return text;
}

// A copy for the child. Without a standard error of ours it has none either.
OwnedHandle inheritable(HANDLE handle)
{
    HANDLE copy = nullptr;
    const HANDLE process = GetCurrentProcess();
    DuplicateHandle(process, handle, process, &copy, 0, TRUE, DUPLICATE_SAME_ACCESS);
    return ownHandle(copy);
}

// Names the handles that a child inherits: it must not get what other threads open for their own children.
class InheritedHandles
{
public:
    explicit InheritedHandles(std::vector<HANDLE> handles)
        : m_handles(std::move(handles))
    {
        SIZE_T size = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        m_bytes.resize(size);
        if (InitializeProcThreadAttributeList(list(), 1, 0, &size) == 0 ||
            UpdateProcThreadAttribute(list(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, m_handles.data(),
                                      m_handles.size() * sizeof(HANDLE), nullptr, nullptr) == 0)
        {
            fail("cannot prepare a child's handles");
        }
    }
    InheritedHandles(const InheritedHandles&) = delete;
    InheritedHandles& operator=(const InheritedHandles&) = delete;
    ~InheritedHandles() { DeleteProcThreadAttributeList(list()); }

    LPPROC_THREAD_ATTRIBUTE_LIST list() { return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(m_bytes.data()); }

private:
    std::vector<HANDLE> m_handles;
    std::vector<char> m_bytes;
};

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& command, const BufferJournal* journal)
{
    Pipe input = Stream::pipe();
    Pipe output = Stream::pipe();
    const OwnedHandle childInput = inheritable(windowsHandle(input.readEnd.handle()));
    const OwnedHandle childOutput = inheritable(windowsHandle(output.writeEnd.handle()));
    const OwnedHandle childError = inheritable(GetStdHandle(STD_ERROR_HANDLE));
    std::vector<NativeHandle> journals = inheritedJournals();
    if (journal != nullptr)
    {
        journals.push_back(journal->inherited());
    }

    std::vector<HANDLE> handles = {windowsHandle(childInput), windowsHandle(childOutput)};
    if (childError.isOpen())
    {
        handles.push_back(windowsHandle(childError));
    }
    std::transform(journals.begin(), journals.end(), std::back_inserter(handles),
                   [](NativeHandle native) { return windowsHandle(native); });
    InheritedHandles inherited(std::move(handles));

    STARTUPINFOEXW startup = {};
    startup.StartupInfo.cb = sizeof(startup);
    startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
    startup.StartupInfo.hStdInput = windowsHandle(childInput);
    startup.StartupInfo.hStdOutput = windowsHandle(childOutput);
    startup.StartupInfo.hStdError = childError.isOpen() ? windowsHandle(childError) : nullptr;
    startup.lpAttributeList = inherited.list();

    std::wstring line = commandLine(command);
    std::wstring environment = environmentWith(journals);
    // Suspended until it is in its job, with all that it starts.
    constexpr DWORD kFlags =
        CREATE_SUSPENDED | CREATE_NEW_PROCESS_GROUP | CREATE_UNICODE_ENVIRONMENT | EXTENDED_STARTUPINFO_PRESENT;
    PROCESS_INFORMATION process = {};
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, kFlags, environment.data(), nullptr,
                       &startup.StartupInfo, &process) == 0)
    {
        fail("cannot start " + command.at(0));
    }
    const OwnedHandle thread = ownHandle(process.hThread);
    m_process = ownHandle(process.hProcess);
    m_job = ownHandle(CreateJobObjectW(nullptr, nullptr));
    AssignProcessToJobObject(windowsHandle(m_job), process.hProcess);
    ResumeThread(process.hThread);
    m_input = std::move(input.writeEnd);
    m_output = std::move(output.readEnd);
}

void ChildProcess::terminate() noexcept
{
    closeInput();
}

void ChildProcess::kill() noexcept
{
    const bool hadEnded = hasEnded();
    if (m_job.isOpen())
    {
        TerminateJobObject(windowsHandle(m_job), 1);
    }
    if (!hadEnded)
    {
        TerminateProcess(windowsHandle(m_process), 1); // where it could not be put in the job
        m_wasKilled = true;
    }
}

bool ChildProcess::hasEnded() noexcept
{
    DWORD code = 0;
    if (!m_status && m_process.isOpen() && WaitForSingleObject(windowsHandle(m_process), 0) == WAIT_OBJECT_0 &&
        GetExitCodeProcess(windowsHandle(m_process), &code) != 0)
    {
        m_status = static_cast<int>(code);
    }
    return m_status.has_value();
}

void ChildProcess::release() noexcept
{
    m_job.close();
}

std::optional<int> ChildProcess::exitCode() const
{
    return m_wasKilled ? std::nullopt : m_status;
}

std::string ChildProcess::endInWords() const
{
    if (m_wasKilled)
    {
        return "it was killed";
    }
    if (!m_status)
    {
        return "it cannot be ended";
    }
    if (*m_status < 0)
    {
        std::ostringstream text;
        text << "it ended by the exception 0x" << std::hex << static_cast<DWORD>(*m_status);
        return text.str();
    }
    return "it exited with code " + std::to_string(*m_status);
}

} // namespace vrx::bridge
