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

constexpr auto kTimeToLoad = 200ms;
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

std::set<mp::wstring> existingBuffers(const std::set<mp::wstring>& names)
{
    std::set<mp::wstring> existing;
    std::copy_if(names.begin(), names.end(), std::inserter(existing, existing.end()), exists);
    return existing;
}

std::set<mp::wstring> unloadedBuffers(const std::set<mp::wstring>& told, const std::function<bool()>& isHostGone)
{
    const auto end = std::chrono::steady_clock::now() + kTimeToLoad;
    std::set<mp::wstring> unloaded = existingBuffers(told);
    while (!unloaded.empty() && !isHostGone() && std::chrono::steady_clock::now() < end)
    {
        std::this_thread::sleep_for(kPause);
        unloaded = existingBuffers(told);
    }
    return unloaded;
}

} // namespace tool
