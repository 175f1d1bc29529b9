// The calls of the C library that a fault can happen to, in place of its own: in the import tables of this program and
// of the libraries that it brings. What the system allocates for itself does not count.

#include "tests/faults/blocks.h"

#include <windows.h>
// After the one above
#include <psapi.h>

#include <algorithm>
#include <array>
#include <cstring>

// NOLINTBEGIN: the names, parameters and memory of the system

using faults::counted;
using faults::FaultPlan;
using faults::hasNoMemory;
using faults::liveBlocks;

namespace
{

template <class Function>
Function* found(const char* library, const char* name, Function*)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA(library), name)));
}

#define REAL(library, name) found(library, #name, &::name)
const auto realMalloc = REAL("msvcrt.dll", malloc);
const auto realCalloc = REAL("msvcrt.dll", calloc);
const auto realRealloc = REAL("msvcrt.dll", realloc);
const auto realFree = REAL("msvcrt.dll", free);
const auto realCreateFile = REAL("kernel32.dll", CreateFileA);

void* ownMalloc(size_t size)
{
    return hasNoMemory() ? nullptr : counted(realMalloc(size));
}

void* ownCalloc(size_t count, size_t size)
{
    return hasNoMemory() ? nullptr : counted(realCalloc(count, size));
}

void* ownRealloc(void* block, size_t size)
{
    if (hasNoMemory())
    {
        return nullptr;
    }
    return block == nullptr ? counted(realRealloc(block, size)) : realRealloc(block, size);
}

void ownFree(void* block)
{
    liveBlocks -= block != nullptr ? 1 : 0;
    realFree(block);
}

// Shared memory is files.
HANDLE WINAPI ownCreateFile(const char* path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* attributes,
                            DWORD disposition, DWORD flags, HANDLE model)
{
    if (disposition != OPEN_EXISTING && std::strstr(path, "boost_interprocess") != nullptr)
    {
        FaultPlan::instance().noteObject(std::strrchr(path, '/') + 1);
    }
    return realCreateFile(path, access, share, attributes, disposition, flags, model);
}

// The system, and the compiler's libraries for threads: without memory one writes through null, the other aborts.
bool isSpared(HMODULE module)
{
    std::array<char, MAX_PATH> folder{};
    std::array<char, MAX_PATH> path{};
    const UINT size = GetSystemDirectoryA(folder.data(), MAX_PATH);
    GetModuleFileNameA(module, path.data(), MAX_PATH);
    return _strnicmp(path.data(), folder.data(), size) == 0 || std::strstr(path.data(), "libwinpthread") != nullptr ||
           std::strstr(path.data(), "libgcc") != nullptr;
}

template <class Function>
void replace(void** begin, void** end, Function* real, Function* own)
{
    std::replace(begin, end, reinterpret_cast<void*>(real), reinterpret_cast<void*>(own));
}

void replaceImports(HMODULE module)
{
    char* const base = reinterpret_cast<char*>(module);
    const auto& dosHeader = *reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto& headers = *reinterpret_cast<IMAGE_NT_HEADERS*>(base + dosHeader.e_lfanew);
    const IMAGE_DATA_DIRECTORY& table = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IAT];
    void** const begin = reinterpret_cast<void**>(base + table.VirtualAddress);
    void** const end = begin + table.Size / sizeof(void*);
    DWORD protection = 0;
    VirtualProtect(begin, table.Size, PAGE_READWRITE, &protection);
    replace(begin, end, realMalloc, ownMalloc);
    replace(begin, end, realCalloc, ownCalloc);
    replace(begin, end, realRealloc, ownRealloc);
    replace(begin, end, realFree, ownFree);
    replace(begin, end, realCreateFile, ownCreateFile);
    VirtualProtect(begin, table.Size, protection, &protection);
}

const bool areImportsReplaced = [] {
    std::array<HMODULE, 100> modules{};
    DWORD size = 0;
    K32EnumProcessModules(GetCurrentProcess(), modules.data(), sizeof(modules), &size);
    const auto end = std::remove_if(modules.begin(), modules.begin() + size / sizeof(HMODULE), isSpared);
    std::for_each(modules.begin(), end, replaceImports);
    return true;
}();

} // namespace

faults::Holdings faults::Holdings::now()
{
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    return {liveBlocks, static_cast<int>(handles)};
}

// NOLINTEND
