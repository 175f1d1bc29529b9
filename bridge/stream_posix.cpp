#include "bridge/stream.h"
#include "bridge/system_error_text.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>

namespace vrx::bridge
{

namespace
{

using std::chrono::milliseconds;

// A signal ends the wait at once; a flag that another thread sets is seen this much later.
constexpr milliseconds kLookAtFlag{50};
constexpr int kPipeSize = 1024 * 1024; // bytes: messages enough for a translator that is much faster than its host

int descriptorOf(const OwnedHandle& handle)
{
    return static_cast<int>(handle.get());
}

[[noreturn]] void fail(const char* what)
{
    throw StreamError(systemErrorText(what, errno));
}

// A descriptor that is none of the three standard ones, even where the program was started without them: a child's
// standard streams are put in their places one after the other.
OwnedHandle ownCopy(int descriptor)
{
    OwnedHandle copy(::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    if (!copy.isOpen())
    {
        fail("cannot open a stream");
    }
    return copy;
}

OwnedHandle openNothing()
{
    const OwnedHandle opened(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    return ownCopy(descriptorOf(opened));
}

// So that no file which is opened later gets the place of standard error.
void provideStandardError()
{
    if (::fcntl(STDERR_FILENO, F_GETFD) >= 0)
    {
        return;
    }
    const OwnedHandle nothing = openNothing();
    if (::dup2(descriptorOf(nothing), STDERR_FILENO) < 0)
    {
        fail("cannot provide standard error");
    }
}

milliseconds restOf(const Wait& wait)
{
    if (!wait.deadline)
    {
        return kLookAtFlag;
    }
    const auto left = *wait.deadline - std::chrono::steady_clock::now();
    return std::clamp(std::chrono::ceil<milliseconds>(left), milliseconds(0), kLookAtFlag);
}

void waitFor(short event, int descriptor, const Wait& wait)
{
    pollfd polled = {descriptor, event, 0};
    int count = 0;
    while (count == 0)
    {
        wait.check();
        count = ::poll(&polled, 1, static_cast<int>(restOf(wait).count()));
        if (count < 0 && errno != EINTR)
        {
            fail("cannot wait for the pipe");
        }
        count = std::max(count, 0);
    }
}

// While there is one, a write to a pipe that nobody reads gives this thread no signal.
class NoPipeSignal
{
public:
    NoPipeSignal()
    {
        sigset_t pending;
        sigpending(&pending);
        m_wasPending = sigismember(&pending, SIGPIPE) == 1;
        sigemptyset(&m_signal);
        sigaddset(&m_signal, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &m_signal, &m_before);
    }
    NoPipeSignal(const NoPipeSignal&) = delete;
    NoPipeSignal& operator=(const NoPipeSignal&) = delete;
    ~NoPipeSignal()
    {
        const timespec now = {};
        while (!m_wasPending && sigtimedwait(&m_signal, nullptr, &now) < 0 && errno == EINTR)
        {
        }
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }

private:
    bool m_wasPending = false;
    sigset_t m_signal = {};
    sigset_t m_before = {};
};

} // namespace

void OwnedHandle::close() noexcept
{
    if (m_native != kNoHandle)
    {
        ::close(static_cast<int>(std::exchange(m_native, kNoHandle)));
    }
}

Pipe Stream::pipe()
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
    {
        fail("cannot make a pipe");
    }
    const OwnedHandle readEnd(ends[0]);
    const OwnedHandle writeEnd(ends[1]);
    ::fcntl(ends[0], F_SETPIPE_SZ, kPipeSize); // a smaller one does too
    return {Stream(ownCopy(ends[0])), Stream(ownCopy(ends[1]))};
}

Stream Stream::standardInput()
{
    return Stream(ownCopy(STDIN_FILENO));
}

Stream Stream::standardOutput()
{
    return Stream(ownCopy(STDOUT_FILENO));
}

Stream Stream::takeStandardOutput()
{
    provideStandardError();
    Stream output = standardOutput();
    if (::dup2(STDERR_FILENO, STDOUT_FILENO) < 0)
    {
        fail("cannot take standard output");
    }
    return output;
}

bool Stream::isReady() const
{
    pollfd polled = {descriptorOf(openHandle()), POLLIN, 0};
    return ::poll(&polled, 1, 0) > 0;
}

std::size_t Stream::readSome(char* bytes, std::size_t size, const Wait& wait) const
{
    const int descriptor = descriptorOf(openHandle());
    ssize_t count = 0;
    do
    {
        if (!wait.isEndless())
        {
            waitFor(POLLIN, descriptor, wait);
        }
        count = ::read(descriptor, bytes, size);
    } while (count < 0 && errno == EINTR);
    if (count < 0)
    {
        fail("cannot read from the pipe");
    }
    return static_cast<std::size_t>(count);
}

void Stream::writeAll(const char* bytes, std::size_t size, const Wait& wait) const
{
    const int descriptor = descriptorOf(openHandle());
    const NoPipeSignal noSignal;
    while (size > 0)
    {
        std::size_t piece = size;
        if (!wait.isEndless())
        {
            waitFor(POLLOUT, descriptor, wait);
            piece = std::min<std::size_t>(size, PIPE_BUF); // what a pipe that is ready takes without a further wait
        }
        const ssize_t count = ::write(descriptor, bytes, piece);
        if (count < 0 && errno == EPIPE)
        {
            throw NoReader(systemErrorText("cannot write to the pipe", EPIPE));
        }
        if (count < 0 && errno != EINTR)
        {
            fail("cannot write to the pipe");
        }
        const std::size_t written = count > 0 ? static_cast<std::size_t>(count) : 0;
        bytes += written;
        size -= written;
    }
}

} // namespace vrx::bridge
