#include "arguments.h"
#include "buffers/buffers.h"

#include <dirent.h>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <utility>

namespace buffers
{

namespace
{

using FileId = std::pair<dev_t, ino_t>;
using Folder = std::unique_ptr<DIR, int (*)(DIR*)>;

constexpr const char* kFolder = "/dev/shm";

Folder openFolder(const std::string& path)
{
    return {opendir(path.c_str()), closedir};
}

template <class Use>
void forEachName(const std::string& path, const Use& use)
{
    const Folder folder = openFolder(path);
    if (folder == nullptr)
    {
        return;
    }
    while (const dirent* const entry = readdir(folder.get())) // NOLINT(concurrency-mt-unsafe): there is one thread
    {
        use(std::string(entry->d_name));
    }
}

FileId idOf(const struct stat& status)
{
    return {status.st_dev, status.st_ino};
}

// A plain file of the folder itself, not what a link in it leads to.
bool statusOf(const std::string& name, struct stat& status)
{
    return lstat((std::string(kFolder) + '/' + name).c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

std::string userName(uid_t user)
{
    const passwd* const entry = getpwuid(user); // NOLINT(concurrency-mt-unsafe): there is one thread
    return entry == nullptr ? std::to_string(user) : entry->pw_name;
}

// The files that a process has mapped: "from-to rights offset major:minor inode path", the device in hexadecimal.
void addMapped(const std::string& process, std::set<FileId>& files)
{
    std::ifstream maps("/proc/" + process + "/maps");
    for (std::string line; std::getline(maps, line);)
    {
        unsigned major = 0;
        unsigned minor = 0;
        unsigned long inode = 0; // NOLINT(google-runtime-int): as scanned
        const int taken =
            std::sscanf(line.c_str(), "%*s %*s %*s %x:%x %lu", &major, &minor, &inode); // NOLINT(cert-err34-c)
        if (taken == 3 && inode != 0)
        {
            files.emplace(makedev(major, minor), inode);
        }
    }
}

void addOpen(const std::string& process, std::set<FileId>& files)
{
    const std::string path = "/proc/" + process + "/fd/";
    forEachName(path, [&](const std::string& descriptor) {
        struct stat status
        {
        };
        if (stat((path + descriptor).c_str(), &status) == 0 && S_ISREG(status.st_mode))
        {
            files.insert(idOf(status));
        }
    });
}

// The processes that have one of the files open or mapped.
std::map<FileId, std::vector<std::uint64_t>> usersOf(const std::set<FileId>& wanted)
{
    std::map<FileId, std::vector<std::uint64_t>> users;
    if (wanted.empty())
    {
        return users;
    }
    forEachName("/proc", [&](const std::string& process) {
        if (process.find_first_not_of("0123456789") != std::string::npos)
        {
            return;
        }
        std::set<FileId> files;
        addOpen(process, files);
        addMapped(process, files);
        for (const FileId& file : files)
        {
            if (wanted.count(file) != 0)
            {
                users[file].push_back(std::stoull(process));
            }
        }
    });
    return users;
}

std::chrono::seconds ageOf(const struct stat& status)
{
    return std::chrono::seconds(std::max<std::time_t>(0, std::time(nullptr) - status.st_mtim.tv_sec));
}

} // namespace

std::string folder()
{
    return kFolder;
}

std::vector<Buffer> all(bool ofAllUsers)
{
    if (openFolder(kFolder) == nullptr)
    {
        throw tool::InputError(std::string(kFolder) + ": " + std::strerror(errno)); // NOLINT(concurrency-mt-unsafe)
    }
    std::map<std::string, struct stat> found;
    std::set<FileId> files;
    forEachName(kFolder, [&](const std::string& name) {
        struct stat status
        {
        };
        if (isBufferName(name) && statusOf(name, status) && (ofAllUsers || status.st_uid == geteuid()))
        {
            found.emplace(name, status);
            files.insert(idOf(status));
        }
    });
    auto users = usersOf(files);
    std::vector<Buffer> buffers;
    for (const auto& [name, status] : found)
    {
        const std::vector<std::uint64_t>& processes = users[idOf(status)];
        buffers.push_back({name, static_cast<std::uint64_t>(status.st_size), ageOf(status), userName(status.st_uid),
                           !processes.empty(), processes});
    }
    return buffers;
}

std::string removeUnused(const Buffer& buffer)
{
    struct stat status
    {
    };
    if (!statusOf(buffer.name, status))
    {
        return "it is gone";
    }
    if (status.st_uid != geteuid())
    {
        return "it is another user's";
    }
    if (ageOf(status) < buffer.age)
    {
        return "it was just written";
    }
    if (!usersOf({idOf(status)}).empty())
    {
        return "a process has it open";
    }
    // The last part of a path is never followed here.
    return unlink((std::string(kFolder) + '/' + buffer.name).c_str()) == 0
               ? ""
               : std::strerror(errno); // NOLINT(concurrency-mt-unsafe)
}

std::vector<char> beginning(const std::string& name, std::size_t most)
{
    const std::string path = std::string(kFolder) + '/' + name;
    const int file = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC); // NOLINT: as the system has it
    if (file < 0)
    {
        return {};
    }
    std::vector<char> bytes(most);
    const ssize_t taken = read(file, bytes.data(), bytes.size());
    close(file);
    bytes.resize(taken < 0 ? 0 : static_cast<std::size_t>(taken));
    return bytes;
}

} // namespace buffers
