#include "bridge/journal_files.h"
#include "bridge/windows_handle.h"

#include <stdexcept>

namespace vrx::bridge
{

namespace
{

constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

[[noreturn]] void fail(const char* what)
{
    throw std::runtime_error(lastErrorText(what));
}

OwnedHandle openFile(const wchar_t* path, DWORD access, DWORD flags, bool inherits)
{
    SECURITY_ATTRIBUTES attributes = {sizeof(SECURITY_ATTRIBUTES), nullptr, inherits ? TRUE : FALSE};
    OwnedHandle file = ownHandle(CreateFileW(path, access, kShared, &attributes, OPEN_EXISTING, flags, nullptr));
    if (!file.isOpen())
    {
        fail("cannot open a journal of shared memory");
    }
    return file;
}

} // namespace

// The file goes with its last handle.
OwnedHandle makeJournalFile(OwnedHandle& inherited)
{
    wchar_t folder[MAX_PATH + 1];
    wchar_t path[MAX_PATH + 1];
    if (GetTempPathW(MAX_PATH + 1, folder) == 0 || GetTempFileNameW(folder, L"vrx", 0, path) == 0)
    {
        fail("cannot make a journal of shared memory");
    }
    OwnedHandle file =
        openFile(path, GENERIC_READ | DELETE, FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, false);
    inherited = openFile(path, FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE, FILE_ATTRIBUTE_TEMPORARY, true);
    return file;
}

std::size_t readAt(const OwnedHandle& file, std::size_t offset, char* bytes, std::size_t size)
{
    LARGE_INTEGER place = {};
    place.QuadPart = static_cast<LONGLONG>(offset);
    DWORD count = 0;
    if (SetFilePointerEx(windowsHandle(file), place, nullptr, FILE_BEGIN) == 0 ||
        ReadFile(windowsHandle(file), bytes, static_cast<DWORD>(size), &count, nullptr) == 0)
    {
        fail("cannot read the journal of shared memory");
    }
    return count;
}

void append(NativeHandle file, std::string_view bytes)
{
    DWORD count = 0;
    if (WriteFile(windowsHandle(file), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) == 0)
    {
        fail("cannot write the journal of shared memory");
    }
}

std::string identityOf(NativeHandle file)
{
    BY_HANDLE_FILE_INFORMATION information = {};
    if (GetFileInformationByHandle(windowsHandle(file), &information) == 0)
    {
        return {};
    }
    return std::to_string(information.dwVolumeSerialNumber) + ':' + std::to_string(information.nFileIndexHigh) + ':' +
           std::to_string(information.nFileIndexLow);
}

} // namespace vrx::bridge
