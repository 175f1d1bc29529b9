#include "child_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <system_error>

namespace
{

volatile sig_atomic_t interrupted = 0;
volatile pid_t interruptee = -1;

const unsigned kGrace = 2;         // seconds
const int kPipeSize = 1024 * 1024; // bytes: messages enough for a translator that is much faster than the host

// The child may be about to tell of shared memory that it has made: it is asked to end, and killed when it does not.
extern "C" void onInterrupt(int)
{
    if (interruptee > 0)
    {
        kill(-interruptee, interrupted != 0 ? SIGKILL : SIGTERM);
        alarm(kGrace);
    }
    interrupted = 1;
}

extern "C" void onGraceOver(int)
{
    if (interruptee > 0)
    {
        kill(-interruptee, SIGKILL);
    }
}

[[noreturn]] void fail(int error, const std::string& what)
{
    throw std::system_error(error, std::generic_category(), what);
}

// Both ends closed in a child, except where it gets one as standard input or output.
struct Pipe
{
    Pipe()
    {
        int ends[2];
        if (::pipe(ends) != 0)
        {
            fail(errno, "cannot make a pipe");
        }
        readEnd = ends[0];
        writeEnd = ends[1];
        ::fcntl(readEnd, F_SETFD, FD_CLOEXEC);
        ::fcntl(writeEnd, F_SETFD, FD_CLOEXEC);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe()
    {
        closeEnd(readEnd);
        closeEnd(writeEnd);
    }

    static void closeEnd(int& end)
    {
        if (end >= 0)
        {
            ::close(end);
            end = -1;
        }
    }

    static int release(int& end)
    {
        const int released = end;
        end = -1;
        return released;
    }

    int readEnd = -1;
    int writeEnd = -1;
};

} // namespace

ChildProcess::ChildProcess(const std::string& program)
{
    Pipe input;
    Pipe output;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input.readEnd, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output.writeEnd, STDOUT_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    std::string name = program;
    char* arguments[] = {name.data(), nullptr};
    const int error = posix_spawn(&m_process, program.c_str(), &actions, &attributes, arguments, environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
    {
        fail(error, "cannot start " + program);
    }
    // A write to a dead child is an error, not a signal.
    signal(SIGPIPE, SIG_IGN);
    ::fcntl(output.readEnd, F_SETPIPE_SZ, kPipeSize); // a smaller one does too
    m_input = Pipe::release(input.writeEnd);
    m_output = Pipe::release(output.readEnd);
}

ChildProcess::~ChildProcess()
{
    end();
}

void ChildProcess::closeInput()
{
    Pipe::closeEnd(m_input);
}

void ChildProcess::terminate() const
{
    if (m_process > 0)
    {
        kill(-m_process, SIGTERM);
        alarm(kGrace);
    }
}

std::string ChildProcess::end()
{
    if (m_process < 0)
    {
        return "it had been ended";
    }
    Pipe::closeEnd(m_input);
    Pipe::closeEnd(m_output);
    int status = 0;
    // The closed pipes end a healthy child. One that is stuck gets a second and is killed.
    for (int tries = 0; waitpid(m_process, &status, WNOHANG) == 0; ++tries)
    {
        if (tries == 1000)
        {
            kill(-m_process, SIGKILL);
        }
        ::usleep(1000);
    }
    interruptee = -1;
    m_process = -1;
    if (WIFSIGNALED(status))
    {
        return std::string("it was ended by signal ") + std::to_string(WTERMSIG(status)) + " (" +
               strsignal(WTERMSIG(status)) + ")";
    }
    return "it exited with code " + std::to_string(WEXITSTATUS(status));
}

void ChildProcess::takeInterrupts() const
{
    interruptee = m_process;
    struct sigaction action = {};
    action.sa_handler = onInterrupt;
    action.sa_flags = SA_RESTART;
    sigfillset(&action.sa_mask);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
    {
        sigaction(number, &action, nullptr);
    }
    action.sa_handler = onGraceOver;
    sigaction(SIGALRM, &action, nullptr);
}

bool ChildProcess::wasInterrupted()
{
    return interrupted != 0;
}
