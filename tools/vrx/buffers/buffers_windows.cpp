#include "arguments.h"
#include "buffers/buffers.h"

#include <aclapi.h>
#include <boost/interprocess/detail/shared_dir_helpers.hpp>
#include <windows.h>

#include <algorithm>
#include <array>
#include <memory>
#include <type_traits>

namespace buffers
{

namespace
{

// Names and the folder are narrow here, as they are for Boost, which opens the objects by them.
std::string pathOf(const std::string& name)
{
    return folder() + '\\' + name;
}

struct Closing
{
    using pointer = HANDLE; // NOLINT(readability-identifier-naming): the standard's name

    void operator()(HANDLE file) const { CloseHandle(file); }
};

using File = std::unique_ptr<std::remove_pointer_t<HANDLE>, Closing>;

// With sharing 0 it opens only what nobody else has open, and keeps others out.
File openFile(const std::string& name, DWORD access, DWORD sharing)
{
    HANDLE const file = CreateFileA(pathOf(name).c_str(), access, sharing, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    return File(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

std::uint64_t wholeOf(DWORD high, DWORD low)
{
    return std::uint64_t{high} << 32U | low;
}

std::chrono::seconds ageOf(const FILETIME& written)
{
    constexpr std::uint64_t kTicks = 10'000'000; // in a second
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    const std::uint64_t end = wholeOf(now.dwHighDateTime, now.dwLowDateTime);
    const std::uint64_t begin = wholeOf(written.dwHighDateTime, written.dwLowDateTime);
    return std::chrono::seconds(end > begin ? (end - begin) / kTicks : 0);
}

std::string ownerOf(const std::string& name)
{
    PSID user = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    std::string path = pathOf(name);
    if (GetNamedSecurityInfoA(path.data(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &user, nullptr, nullptr, nullptr,
                              &descriptor) != ERROR_SUCCESS)
    {
        return "?";
    }
    std::array<char, 256> account{};
    std::array<char, 256> domain{};
    auto accountSize = static_cast<DWORD>(account.size());
    auto domainSize = static_cast<DWORD>(domain.size());
    SID_NAME_USE use{};
    const bool isKnown =
        LookupAccountSidA(nullptr, user, account.data(), &accountSize, domain.data(), &domainSize, &use) != 0;
    LocalFree(descriptor);
    return isKnown ? account.data() : "?";
}

std::string thisUser()
{
    std::array<char, 256> name{};
    auto size = static_cast<DWORD>(name.size());
    return GetUserNameA(name.data(), &size) != 0 ? name.data() : "";
}

bool isPlainFile(DWORD attributes)
{
    return (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == 0;
}

bool isOpen(const std::string& name)
{
    return openFile(name, GENERIC_READ, 0) == nullptr && GetLastError() == ERROR_SHARING_VIOLATION;
}

} // namespace

std::string folder()
{
    std::string path;
    boost::interprocess::ipcdetail::get_shared_dir(path);
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

std::vector<Buffer> all(bool ofAllUsers)
{
    std::vector<Buffer> buffers;
    WIN32_FIND_DATAA entry{};
    HANDLE const search = FindFirstFileA(pathOf("*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
    {
        return buffers; // Boost makes the folder with the first object in it.
    }
    const std::string user = thisUser();
    do
    {
        const std::string name = entry.cFileName;
        if (!isBufferName(name) || !isPlainFile(entry.dwFileAttributes))
        {
            continue;
        }
        const std::string owner = ownerOf(name);
        if (ofAllUsers || owner == user)
        {
            buffers.push_back({name,
                               wholeOf(entry.nFileSizeHigh, entry.nFileSizeLow),
                               ageOf(entry.ftLastWriteTime),
                               owner,
                               isOpen(name),
                               {}});
        }
    } while (FindNextFileA(search, &entry) != 0);
    FindClose(search);
    std::sort(buffers.begin(), buffers.end(), [](const Buffer& a, const Buffer& b) { return a.name < b.name; });
    return buffers;
}

std::string removeUnused(const Buffer& buffer)
{
    const File file = openFile(buffer.name, DELETE | FILE_READ_ATTRIBUTES, 0);
    if (file == nullptr)
    {
        const DWORD error = GetLastError();
        return error == ERROR_SHARING_VIOLATION ? "a process has it open"
               : error == ERROR_FILE_NOT_FOUND  ? "it is gone"
                                                : "error " + std::to_string(error);
    }
    BY_HANDLE_FILE_INFORMATION status{};
    if (GetFileInformationByHandle(file.get(), &status) == 0 || !isPlainFile(status.dwFileAttributes))
    {
        return "it is no plain file";
    }
    if (ageOf(status.ftLastWriteTime) < buffer.age)
    {
        return "it was just written";
    }
    FILE_DISPOSITION_INFO disposition{};
    disposition.DeleteFile = TRUE;
    return SetFileInformationByHandle(file.get(), FileDispositionInfo, &disposition, sizeof(disposition)) != 0
               ? ""
               : "error " + std::to_string(GetLastError());
}

std::vector<char> beginning(const std::string& name, std::size_t most)
{
    const File file = openFile(name, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    std::vector<char> bytes(most);
    DWORD taken = 0;
    if (file == nullptr || ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &taken, nullptr) == 0)
    {
        taken = 0;
    }
    bytes.resize(taken);
    return bytes;
}

} // namespace buffers
