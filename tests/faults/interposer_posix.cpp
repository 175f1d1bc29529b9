// The calls of the C library that a fault can happen to, in place of its own: the libraries that this program loads
// find these first.

#include "tests/faults/blocks.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <type_traits>

// NOLINTBEGIN: the names, parameters and memory of the C library

using faults::counted;
using faults::ECalls;
using faults::EMode;
using faults::FaultPlan;
using faults::hasNoMemory;
using faults::liveBlocks;

namespace
{

enum class EGives
{
    MinusOne, // and errno
    Error,    // the error itself
};

/// A function of the C library, the error that a fault gives, and whether a signal can interrupt the call.
template <class Function>
class Call
{
public:
    Call(Function*, const char* name, int error, bool isInterruptible = false, EGives gives = EGives::MinusOne)
        : m_real(reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name)))
        , m_name(name)
        , m_error(error)
        , m_isInterruptible(isInterruptible)
        , m_gives(gives)
    {
    }

    template <class... Arguments>
    auto operator()(Arguments... arguments) const
    {
        using Result = std::invoke_result_t<Function, Arguments...>;
        if (strikes(EMode::KillsBefore))
        {
            std::raise(SIGKILL);
        }
        if (strikes(EMode::Fails))
        {
            return failed<Result>(m_error);
        }
        if (m_isInterruptible && strikes(EMode::IsInterrupted))
        {
            return failed<Result>(EINTR);
        }
        const Result result = m_real(arguments...);
        if (strikes(EMode::KillsBehind))
        {
            std::raise(SIGKILL);
        }
        return result;
    }

private:
    bool strikes(EMode mode) const { return FaultPlan::instance().strikes(ECalls::SystemCalls, mode, m_name); }

    template <class Result>
    Result failed(int error) const
    {
        if constexpr (std::is_pointer_v<Result>)
        {
            errno = error;
            return MAP_FAILED;
        }
        else
        {
            errno = m_gives == EGives::MinusOne ? error : errno;
            return m_gives == EGives::MinusOne ? -1 : error;
        }
    }

    Function* m_real;
    const char* m_name;
    int m_error;
    bool m_isInterruptible;
    EGives m_gives;
};

size_t taken(size_t size)
{
    const bool isShort = size > 1 && FaultPlan::instance().strikes(ECalls::SystemCalls, EMode::IsShort, "");
    return isShort ? size / 2 : size;
}

const char* noted(const char* name, int flags)
{
    if ((flags & O_CREAT) != 0)
    {
        FaultPlan::instance().noteObject(name + 1);
    }
    return name;
}

} // namespace

faults::Holdings faults::Holdings::now()
{
    constexpr int kMost = 64;
    Holdings holdings = {liveBlocks, 0};
    for (int file = 0; file < kMost; ++file)
    {
        holdings.files += ::fcntl(file, F_GETFD) >= 0 ? 1 : 0;
    }
    return holdings;
}

extern "C"
{
    void* realMalloc(size_t size) __asm__("__libc_malloc");
    void* realCalloc(size_t count, size_t size) __asm__("__libc_calloc");
    void* realRealloc(void* block, size_t size) __asm__("__libc_realloc");
    void realFree(void* block) __asm__("__libc_free");

    void* malloc(size_t size) noexcept
    {
        return hasNoMemory() ? nullptr : counted(realMalloc(size));
    }
    void* calloc(size_t count, size_t size) noexcept
    {
        return hasNoMemory() ? nullptr : counted(realCalloc(count, size));
    }
    void* realloc(void* block, size_t size) noexcept
    {
        if (hasNoMemory())
        {
            return nullptr;
        }
        return block == nullptr ? counted(realRealloc(block, size)) : realRealloc(block, size);
    }
    void free(void* block) noexcept
    {
        liveBlocks -= block != nullptr ? 1 : 0;
        realFree(block);
    }

    int open(const char* path, int flags, ...)
    {
        static const Call call(static_cast<int (*)(const char*, int, mode_t)>(nullptr), "open", ENFILE);
        va_list rest;
        va_start(rest, flags);
        const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
        va_end(rest);
        return call(path, flags, mode);
    }
    int fcntl(int file, int command, ...)
    {
        static const Call call(static_cast<int (*)(int, int, void*)>(nullptr), "fcntl", EMFILE);
        va_list rest;
        va_start(rest, command);
        void* const argument = va_arg(rest, void*);
        va_end(rest);
        return call(file, command, argument);
    }

// The function with its parameters and what it hands on, the error that a fault gives, and the rest of a Call.
#define CALL(result, name, parameters, arguments, ...)       \
    result name parameters                                   \
    {                                                        \
        static const Call call(&::name, #name, __VA_ARGS__); \
        return call arguments;                               \
    }
    // clang-format off
    CALL(int, shm_open, (const char* name, int flags, mode_t mode), (noted(name, flags), flags, mode), EMFILE)
    CALL(int, shm_unlink, (const char* name), (name), EACCES)
    CALL(int, fchmod, (int file, mode_t mode) noexcept, (file, mode), EPERM)
    CALL(int, fstat, (int file, struct stat* status) noexcept, (file, status), ENOMEM)
    CALL(int, ftruncate, (int file, off_t size) noexcept, (file, size), EIO)
    CALL(int, posix_fallocate, (int file, off_t place, off_t size), (file, place, size), ENOSPC, true, EGives::Error)
    CALL(void*, mmap, (void* at, size_t size, int rights, int flags, int file, off_t place) noexcept,
         (at, size, rights, flags, file, place), ENOMEM)
    CALL(int, madvise, (void* at, size_t size, int advice) noexcept, (at, size, advice), ENOMEM)
    CALL(off_t, lseek, (int file, off_t place, int whence) noexcept, (file, place, whence), EINVAL)
    CALL(ssize_t, pread, (int file, void* bytes, size_t size, off_t place), (file, bytes, taken(size), place), EIO, true)
    CALL(ssize_t, getrandom, (void* bytes, size_t size, unsigned flags), (bytes, taken(size), flags), ENOSYS, true)
    CALL(int, memfd_create, (const char* name, unsigned flags) noexcept, (name, flags), EMFILE)
    CALL(int, pipe2, (int* ends, int flags) noexcept, (ends, flags), EMFILE)
    CALL(int, dup2, (int from, int to) noexcept, (from, to), EBUSY, true)
    CALL(ssize_t, read, (int file, void* bytes, size_t size), (file, bytes, taken(size)), EIO, true)
    CALL(ssize_t, write, (int file, const void* bytes, size_t size), (file, bytes, taken(size)), ENOMEM, true)
    CALL(int, poll, (pollfd* files, nfds_t count, int limit), (files, count, limit), ENOMEM, true)
    CALL(int, posix_spawnp,
         (pid_t* process, const char* file, const posix_spawn_file_actions_t* actions, const posix_spawnattr_t* attributes,
          char* const* arguments, char* const* environment),
         (process, file, actions, attributes, arguments, environment), EAGAIN, false, EGives::Error)
    // clang-format on
}

// NOLINTEND
