#include "bench/child.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>

namespace bench
{

namespace
{

[[noreturn]] void answer(int out, const std::function<std::string()>& work)
{
    try
    {
        const std::string text = work();
        const ssize_t written = write(out, text.data(), text.size());
        _exit(written == static_cast<ssize_t>(text.size()) ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "vrx_api_bench: %s\n", failure.what());
        _exit(EXIT_FAILURE);
    }
}

std::string readAll(int in)
{
    std::string text;
    char piece[4096];
    ssize_t count = 0;
    while ((count = read(in, piece, sizeof piece)) > 0)
    {
        text.append(piece, static_cast<std::size_t>(count));
    }
    return text;
}

} // namespace

std::string inChild(const std::function<std::string()>& work)
{
    int ends[2] = {};
    if (pipe(ends) != 0)
    {
        throw std::runtime_error("no pipe to a child process");
    }
    const pid_t child = fork();
    if (child == 0)
    {
        close(ends[0]);
        answer(ends[1], work);
    }
    close(ends[1]);
    std::string text = readAll(ends[0]);
    close(ends[0]);
    int status = -1;
    if (waitpid(child, &status, 0) != child || status != 0)
    {
        throw std::runtime_error("a child process failed");
    }
    return text;
}

} // namespace bench
