// Goes ahead of every source of a build with planted faults: tells which of them shows itself in this process.
// VRX_FAULT is its number. VRX_FAULT_RECORD is a file with a byte per fault; those that are come by are set to one.
#pragma once

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <type_traits>

namespace vrx_planted
{

struct Choice
{
    Choice()
    {
        const char* const number = std::getenv("VRX_FAULT");
        const char* const path = std::getenv("VRX_FAULT_RECORD");
        fault = number == nullptr ? -1 : std::atoi(number);
        const int file = path == nullptr ? -1 : ::open(path, O_RDWR | O_CLOEXEC);
        struct stat status = {};
        if (file >= 0 && ::fstat(file, &status) == 0)
        {
            const auto size = static_cast<std::size_t>(status.st_size);
            void* const bytes = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
            reached = bytes == MAP_FAILED ? nullptr : static_cast<volatile char*>(bytes);
            ::close(file);
        }
    }

    int fault;
    volatile char* reached = nullptr;
};

inline bool isChosen(int fault)
{
    static const Choice choice;
    if (choice.reached != nullptr)
    {
        choice.reached[fault] = 1;
    }
    return fault == choice.fault;
}

// What the compiler evaluates itself has no faults.
constexpr bool on(int fault)
{
    return !__builtin_is_constant_evaluated() && isChosen(fault);
}

template <class T>
constexpr T offByOne(int fault, T value)
{
    if constexpr (std::is_same_v<T, bool>)
    {
        return value != on(fault);
    }
    else
    {
        return on(fault) ? static_cast<T>(value + 1) : value;
    }
}

#define VRX_PLANTED_OPERATOR(name, right, wrong)  \
    template <class A, class B>                   \
    constexpr auto name(int fault, A a, B b)      \
    {                                             \
        return on(fault) ? a wrong b : a right b; \
    }

VRX_PLANTED_OPERATOR(less, <, <=)
VRX_PLANTED_OPERATOR(lessEqual, <=, <)
VRX_PLANTED_OPERATOR(greater, >, >=)
VRX_PLANTED_OPERATOR(greaterEqual, >=, >)
VRX_PLANTED_OPERATOR(plus, +, -)
VRX_PLANTED_OPERATOR(minus, -, +)
VRX_PLANTED_OPERATOR(times, *, /)
VRX_PLANTED_OPERATOR(over, /, *)
VRX_PLANTED_OPERATOR(both, &, |)
VRX_PLANTED_OPERATOR(either, |, &)
VRX_PLANTED_OPERATOR(left, <<, >>)
VRX_PLANTED_OPERATOR(right, >>, <<)

} // namespace vrx_planted
