#include "bridge/stream.h"
#include "bridge/windows_handle.h"

#include <io.h>

#include <algorithm>
#include <cstdio>

namespace vrx::bridge
{

namespace
{

constexpr DWORD kPipeSize = 1024 * 1024; // bytes: messages enough for a translator that is much faster than its host
constexpr DWORD kLongestPause = 15;      // milliseconds
constexpr std::size_t kPiece = 1U << 20;

[[noreturn]] void fail(const char* what)
{
    throw StreamError(lastErrorText(what));
}

OwnedHandle ownCopy(HANDLE handle)
{
    HANDLE copy = nullptr;
    const HANDLE process = GetCurrentProcess();
    if (DuplicateHandle(process, handle, process, &copy, 0, FALSE, DUPLICATE_SAME_ACCESS) == 0)
    {
        fail("cannot open a stream");
    }
    return ownHandle(copy);
}

// Whether there is something to read, an error and the end of a pipe included.
bool hasBytes(HANDLE pipe)
{
    DWORD available = 0;
    return PeekNamedPipe(pipe, nullptr, 0, nullptr, &available, nullptr) == 0 || available > 0;
}

// Comes back when there is something to read. The system can't wait for an
// anonymous pipe, so it is looked at again and again, with growing pauses.
void waitForBytes(HANDLE pipe, const Wait& wait)
{
    for (DWORD pause = 0; wait.check(), !hasBytes(pipe); pause = std::min(pause + 1, kLongestPause))
    {
        Sleep(pause);
    }
}

// A program with windows, and what it starts, has none: neither the system's handle nor a file of the runtime of C.
void provideStandardError()
{
    HANDLE const error = GetStdHandle(STD_ERROR_HANDLE);
    if (error != nullptr && error != INVALID_HANDLE_VALUE && _fileno(stderr) >= 0)
    {
        return;
    }
    if (std::freopen("NUL", "w", stderr) == nullptr ||
        SetStdHandle(STD_ERROR_HANDLE, reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stderr)))) == 0)
    {
        fail("cannot provide standard error");
    }
}

bool isEnd(DWORD error)
{
    return error == ERROR_BROKEN_PIPE || error == ERROR_HANDLE_EOF || error == ERROR_PIPE_NOT_CONNECTED;
}

} // namespace

void OwnedHandle::close() noexcept
{
    if (m_native != kNoHandle)
    {
        CloseHandle(windowsHandle(std::exchange(m_native, kNoHandle)));
    }
}

Pipe Stream::pipe()
{
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    if (CreatePipe(&readEnd, &writeEnd, nullptr, kPipeSize) == 0)
    {
        fail("cannot make a pipe");
    }
    return {Stream(ownHandle(readEnd)), Stream(ownHandle(writeEnd))};
}

Stream Stream::standardInput()
{
    return Stream(ownCopy(GetStdHandle(STD_INPUT_HANDLE)));
}

Stream Stream::standardOutput()
{
    return Stream(ownCopy(GetStdHandle(STD_OUTPUT_HANDLE)));
}

// The runtime of C gives the system's handle up with its own, of which this process has a copy by then.
Stream Stream::takeStandardOutput()
{
    provideStandardError();
    Stream output = standardOutput();
    if (_dup2(_fileno(stderr), _fileno(stdout)) != 0 ||
        SetStdHandle(STD_OUTPUT_HANDLE, GetStdHandle(STD_ERROR_HANDLE)) == 0)
    {
        fail("cannot take standard output");
    }
    return output;
}

bool Stream::isReady() const
{
    return hasBytes(windowsHandle(openHandle()));
}

std::size_t Stream::readSome(char* bytes, std::size_t size, const Wait& wait) const
{
    const HANDLE handle = windowsHandle(openHandle());
    DWORD count = 0;
    bool goesOn = true;
    while (goesOn)
    {
        if (!wait.isEndless())
        {
            waitForBytes(handle, wait);
        }
        if (ReadFile(handle, bytes, static_cast<DWORD>(std::min(size, kPiece)), &count, nullptr) == 0)
        {
            if (!isEnd(GetLastError()))
            {
                fail("cannot read from the pipe");
            }
            return 0;
        }
        // Nothing was read where the other side wrote nothing, which is no end of a pipe.
        goesOn = count == 0 && GetFileType(handle) == FILE_TYPE_PIPE;
    }
    return count;
}

void Stream::writeAll(const char* bytes, std::size_t size, const Wait& wait) const
{
    const HANDLE handle = windowsHandle(openHandle());
    while (size > 0)
    {
        wait.check();
        DWORD count = 0;
        if (WriteFile(handle, bytes, static_cast<DWORD>(std::min(size, kPiece)), &count, nullptr) == 0)
        {
            if (isEnd(GetLastError()) || GetLastError() == ERROR_NO_DATA)
            {
                throw NoReader(lastErrorText("cannot write to the pipe"));
            }
            fail("cannot write to the pipe");
        }
        bytes += count;
        size -= count;
    }
}

} // namespace vrx::bridge
