#pragma once

#include <future>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace test
{

constexpr int kThreads = 4;

/// In a thread, where GoogleTest's own checks are not for every system.
inline void require(bool holds, const std::string& what)
{
    if (!holds)
    {
        throw std::runtime_error(what);
    }
}

/// Runs the function in several threads that start together, and throws what one of them throws.
template <class Function>
void inThreads(Function function, int count = kThreads)
{
    std::promise<void> start;
    const std::shared_future<void> started = start.get_future().share();
    std::vector<std::future<void>> threads;
    threads.reserve(static_cast<std::size_t>(count));
    for (int number = 0; number < count; ++number)
    {
        threads.push_back(std::async(std::launch::async, [&function, started, number] {
            started.wait();
            function(number);
        }));
    }
    start.set_value();
    for (std::future<void>& thread : threads)
    {
        thread.get();
    }
}

} // namespace test
