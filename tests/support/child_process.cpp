#include "tests/support/child_process.h"

#include <stdexcept>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

extern char** environ; // NOLINT(readability-redundant-declaration): not all systems declare it
#endif

namespace test
{

namespace
{

constexpr std::intptr_t kNone = -1;

void require(bool success, const char* what)
{
    if (!success)
    {
        throw std::runtime_error(std::string("child process: ") + what);
    }
}

} // namespace

#ifdef _WIN32

namespace
{

HANDLE handleOf(std::intptr_t handle)
{
    return reinterpret_cast<HANDLE>(handle); // NOLINT: kept as a number, as on POSIX
}

std::intptr_t numberOf(HANDLE handle)
{
    return reinterpret_cast<std::intptr_t>(handle); // NOLINT
}

void closeEnd(std::intptr_t& end)
{
    if (end != kNone)
    {
        CloseHandle(handleOf(end));
        end = kNone;
    }
}

// Both ends of a new pipe; the child inherits only the end that is meant for it.
void makePipe(HANDLE& readEnd, HANDLE& writeEnd, bool childReads)
{
    SECURITY_ATTRIBUTES inherited = {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    require(CreatePipe(&readEnd, &writeEnd, &inherited, 0) != 0, "no pipe");
    SetHandleInformation(childReads ? writeEnd : readEnd, HANDLE_FLAG_INHERIT, 0);
}

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& command)
{
    HANDLE childInput = nullptr;
    HANDLE childOutput = nullptr;
    HANDLE input = nullptr;
    HANDLE output = nullptr;
    makePipe(childInput, input, true);
    makePipe(output, childOutput, false);
    m_input = numberOf(input);
    m_output = numberOf(output);

    std::string line;
    for (const std::string& word : command)
    {
        line += '"' + word + "\" ";
    }
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = childInput;
    startup.hStdOutput = childOutput;
    startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION process = {};
    const BOOL started =
        CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process);
    CloseHandle(childInput);
    CloseHandle(childOutput);
    if (started == 0)
    {
        closeEnd(m_input);
        closeEnd(m_output);
    }
    require(started != 0, "not started");
    CloseHandle(process.hThread);
    m_process = numberOf(process.hProcess);
}

void ChildProcess::write(std::string_view bytes) const
{
    while (!bytes.empty())
    {
        DWORD count = 0;
        require(WriteFile(handleOf(m_input), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) != 0,
                "it takes no input");
        bytes.remove_prefix(count);
    }
}

std::size_t ChildProcess::readSome(char* bytes, std::size_t size) const
{
    DWORD count = 0;
    return ReadFile(handleOf(m_output), bytes, static_cast<DWORD>(size), &count, nullptr) != 0 ? count : 0;
}

int ChildProcess::wait()
{
    WaitForSingleObject(handleOf(m_process), INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(handleOf(m_process), &code);
    closeEnd(m_process);
    return m_killed ? -1 : static_cast<int>(code);
}

void ChildProcess::kill()
{
    m_killed = true;
    TerminateProcess(handleOf(m_process), 1);
}

#else

namespace
{

void closeEnd(std::intptr_t& end)
{
    if (end != kNone)
    {
        close(static_cast<int>(end));
        end = kNone;
    }
}

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& command)
{
    // A child that has gone must not take this process with it.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    int toChild[2];
    int fromChild[2];
    require(pipe(toChild) == 0 && pipe(fromChild) == 0, "no pipe");
    for (const int end : {toChild[0], toChild[1], fromChild[0], fromChild[1]})
    {
        fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, toChild[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, fromChild[1], STDOUT_FILENO);
    std::vector<std::string> words = command;
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words)
    {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    pid_t process = 0;
    const int error = posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(toChild[0]);
    close(fromChild[1]);
    m_input = toChild[1];
    m_output = fromChild[0];
    if (error != 0)
    {
        closeEnd(m_input);
        closeEnd(m_output);
    }
    require(error == 0, "not started");
    m_process = process;
}

void ChildProcess::write(std::string_view bytes) const
{
    while (!bytes.empty())
    {
        const ssize_t count = ::write(static_cast<int>(m_input), bytes.data(), bytes.size());
        require(count > 0 || errno == EINTR, "it takes no input");
        bytes.remove_prefix(count > 0 ? static_cast<std::size_t>(count) : 0);
    }
}

std::size_t ChildProcess::readSome(char* bytes, std::size_t size) const
{
    ssize_t count = 0;
    do
    {
        count = ::read(static_cast<int>(m_output), bytes, size);
    } while (count < 0 && errno == EINTR);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

int ChildProcess::wait()
{
    int status = 0;
    pid_t ended = 0;
    do
    {
        ended = waitpid(static_cast<pid_t>(m_process), &status, 0);
    } while (ended < 0 && errno == EINTR);
    m_process = kNone;
    return WIFEXITED(status) && !m_killed ? WEXITSTATUS(status) : -1;
}

void ChildProcess::kill()
{
    m_killed = true;
    ::kill(static_cast<pid_t>(m_process), SIGKILL);
}

#endif

ChildProcess::~ChildProcess()
{
    closeInput();
    if (m_process != kNone)
    {
        kill();
        wait();
    }
    closeEnd(m_output);
}

void ChildProcess::closeInput()
{
    closeEnd(m_input);
}

std::string ChildProcess::readAll()
{
    std::string all;
    char bytes[4096];
    for (std::size_t count = readSome(bytes, sizeof(bytes)); count != 0; count = readSome(bytes, sizeof(bytes)))
    {
        all.append(bytes, count);
    }
    return all;
}

std::string ChildProcess::readUpTo(char end)
{
    std::string all;
    for (char byte = 0; readSome(&byte, 1) == 1 && byte != end;)
    {
        all.push_back(byte);
    }
    return all;
}

} // namespace test
