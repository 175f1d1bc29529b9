#include "unloaded_buffers.h"

#include "mp/exception.h"
#include "mp/shared_buffer.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <thread>

namespace tool
{

namespace
{

using namespace std::chrono_literals;

constexpr auto kTimeToLoad = 500ms;
constexpr auto kPause = 10ms;

bool exists(const mp::wstring& name)
{
    try
    {
        return mp::SharedBuffer<char>().openExisting(name);
    }
    catch (const mp::SharedMemoryException&)
    {
        return false;
    }
}

} // namespace

std::vector<mp::wstring> unloadedBuffers(const std::set<mp::wstring>& told, const std::function<bool()>& isHostGone)
{
    const auto end = std::chrono::steady_clock::now() + kTimeToLoad;
    for (;;)
    {
        std::vector<mp::wstring> unloaded;
        std::copy_if(told.begin(), told.end(), std::back_inserter(unloaded), exists);
        if (unloaded.empty() || isHostGone() || std::chrono::steady_clock::now() >= end)
        {
            return unloaded;
        }
        std::this_thread::sleep_for(kPause);
    }
}

} // namespace tool
