#pragma once

#include <chrono>
#include <exception>
#include <iostream>
#include <iterator>
#include <string>
#include <thread>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#endif

// What the other processes of the roads have in common.

namespace test
{

inline std::string readInput()
{
    return {std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>()};
}

/// Writes the byte FF, behind which nothing comes.
inline void tellThatAllIsWritten()
{
    std::cout << '\xFF' << std::flush;
}

/// Stays until it is killed, but not for ever.
inline void stay()
{
    tellThatAllIsWritten();
    std::this_thread::sleep_for(std::chrono::minutes(1));
}

/// Runs a function that returns the exit code. An exception is the exit code 3, and its text the end of the output.
template <class Function>
int runPeer(Function function)
{
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    try
    {
        return function();
    }
    catch (const std::exception& error)
    {
        std::cout << error.what();
        return 3;
    }
}

} // namespace test
