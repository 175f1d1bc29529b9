#include "bridge/child_process.h"
#include "bridge/journal_files.h"
#include "bridge/system_error_text.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <stdexcept>

extern char** environ; // NOLINT(readability-redundant-declaration): not all systems declare it

namespace vrx::bridge
{

namespace
{

std::vector<char*> pointersTo(std::vector<std::string>& words)
{
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words)
    {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

// The inherited journals stay open in the child by themselves.
std::vector<std::string> environmentWith(const BufferJournal* journal)
{
    const std::string variable = std::string(kJournalsVariable) + '=';
    std::vector<std::string> entries;
    for (char** entry = environ; *entry != nullptr; ++entry)
    {
        if (std::strncmp(*entry, variable.c_str(), variable.size()) != 0)
        {
            entries.emplace_back(*entry);
        }
    }
    std::vector<NativeHandle> journals = inheritedJournals();
    if (journal != nullptr)
    {
        journals.push_back(journal->inherited());
    }
    if (!journals.empty())
    {
        entries.push_back(variable + journalsText(journals));
    }
    return entries;
}

void require(int error)
{
    if (error != 0)
    {
        throw std::runtime_error(systemErrorText("cannot start a program", error));
    }
}

// What the child opens and closes, and how it takes signals: as if this process had changed nothing of them.
class SpawnPlan
{
public:
    SpawnPlan()
    {
        posix_spawn_file_actions_init(&m_actions);
        posix_spawnattr_init(&m_attributes);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&m_attributes, &signals);
        sigaddset(&signals, SIGPIPE);
        sigaddset(&signals, SIGTERM);
        sigaddset(&signals, SIGXFSZ);
        posix_spawnattr_setsigdefault(&m_attributes, &signals);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;
    ~SpawnPlan()
    {
        posix_spawnattr_destroy(&m_attributes);
        posix_spawn_file_actions_destroy(&m_actions);
    }

    void put(NativeHandle from, NativeHandle to)
    {
        require(posix_spawn_file_actions_adddup2(&m_actions, static_cast<int>(from), static_cast<int>(to)));
    }

    // What is written there is dropped.
    void openNothing(int descriptor)
    {
        require(posix_spawn_file_actions_addopen(&m_actions, descriptor, "/dev/null", O_WRONLY, 0));
    }

    pid_t start(std::vector<std::string> command, std::vector<std::string> environment)
    {
        pid_t process = 0;
        const int error = posix_spawnp(&process, command.at(0).c_str(), &m_actions, &m_attributes,
                                       pointersTo(command).data(), pointersTo(environment).data());
        if (error != 0)
        {
            throw std::runtime_error(systemErrorText("cannot start " + command.front(), error));
        }
        return process;
    }

private:
    posix_spawn_file_actions_t m_actions = {};
    posix_spawnattr_t m_attributes = {};
};

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& command, const BufferJournal* journal)
{
    Pipe input = Stream::pipe();
    Pipe output = Stream::pipe();
    SpawnPlan plan;
    plan.put(input.readEnd.handle().get(), STDIN_FILENO);
    plan.put(output.writeEnd.handle().get(), STDOUT_FILENO);
    if (journal != nullptr)
    {
        plan.put(journal->inherited(), journal->inherited()); // which keeps it open in the child
    }
    if (::fcntl(STDERR_FILENO, F_GETFD) < 0)
    {
        plan.openNothing(STDERR_FILENO);
    }
    m_process = plan.start(command, environmentWith(journal));
    m_input = std::move(input.writeEnd);
    m_output = std::move(output.readEnd);
}

void ChildProcess::terminate() noexcept
{
    closeInput();
    if (m_process != kNoHandle)
    {
        ::kill(-static_cast<pid_t>(m_process), SIGTERM);
    }
}

void ChildProcess::kill() noexcept // NOLINT(readability-make-member-function-const): not so on Windows
{
    if (m_process != kNoHandle)
    {
        ::kill(-static_cast<pid_t>(m_process), SIGKILL);
    }
}

// Until the child is released its number, which is that of its group too, is no other process's.
bool ChildProcess::hasEnded() noexcept
{
    if (m_hasEnded || m_process == kNoHandle)
    {
        return m_hasEnded;
    }
    siginfo_t end = {};
    if (::waitid(P_PID, static_cast<id_t>(m_process), &end, WEXITED | WNOHANG | WNOWAIT) == 0)
    {
        m_hasEnded = end.si_pid != 0;
        if (m_hasEnded)
        {
            m_status = end.si_code == CLD_EXITED ? end.si_status : -end.si_status;
        }
    }
    else if (errno == ECHILD)
    {
        // Where SIGCHLD is ignored, the system has released the child.
        m_hasEnded = true;
        m_process = kNoHandle;
    }
    return m_hasEnded;
}

void ChildProcess::release() noexcept
{
    if (m_hasEnded && m_process != kNoHandle)
    {
        ::waitpid(static_cast<pid_t>(m_process), nullptr, WNOHANG);
        m_process = kNoHandle;
    }
}

std::optional<int> ChildProcess::exitCode() const
{
    return m_status && *m_status >= 0 ? m_status : std::nullopt;
}

std::string ChildProcess::endInWords() const
{
    if (const std::optional<int> code = exitCode())
    {
        return "it exited with code " + std::to_string(*code);
    }
    if (!m_status)
    {
        return m_hasEnded ? "it ended" : "it cannot be ended";
    }
    const int number = -*m_status;
    return "it was ended by signal " + std::to_string(number) + " (" + ::strsignal(number) + ")";
}

} // namespace vrx::bridge
