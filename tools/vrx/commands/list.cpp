#include "buffers/buffers.h"
#include "commands/commands.h"
#include "console/console.h"
#include "measures.h"
#include "mp/narrow.h"
#include "printing/escaped.h"

#include <algorithm>
#include <iostream>

namespace tool
{

namespace
{

std::string padded(const std::string& text, std::size_t width, bool toTheRight)
{
    const std::string blanks(width - std::min(width, text.size()), ' ');
    return toTheRight ? blanks + text : text + blanks;
}

// The name of a user comes in the system's code page.
mp::wstring ownerOf(const buffers::Buffer& buffer)
{
    return mp::toWide(buffer.owner);
}

std::string usersOf(const buffers::Buffer& buffer)
{
    std::string users;
    for (const std::uint64_t process : buffer.processes)
    {
        users += (users.empty() ? "" : ",") + std::to_string(process);
    }
    return users.empty() ? (buffer.isOpen ? "open" : "-") : users;
}

void printTable(const std::vector<buffers::Buffer>& found)
{
    constexpr std::size_t kName = 36;
    constexpr std::size_t kSize = 14;
    constexpr std::size_t kAge = 8;
    constexpr std::size_t kOwner = 10;
    constexpr std::size_t kUsers = 8;
    const auto line = [](const std::string& name, const std::string& size, const std::string& age,
                         const std::string& owner, const std::string& users, const std::string& kind) {
        std::cout << padded(name, kName, false) << padded(size, kSize, true) << padded(age, kAge, true) << "  "
                  << padded(owner, kOwner, false) << ' ' << padded(users, kUsers, false) << ' ' << kind << '\n';
    };
    if (!found.empty())
    {
        line("NAME", "BYTES", "AGE", "OWNER", "USED BY", "CLASS");
    }
    for (const buffers::Buffer& buffer : found)
    {
        line(buffer.name, counted(buffer.size), roughly(buffer.age), printing::escaped(ownerOf(buffer)),
             usersOf(buffer), buffers::guessedClass(buffer.name));
    }
}

void printJson(const std::vector<buffers::Buffer>& found)
{
    std::cout << '[';
    const char* separator = "\n";
    for (const buffers::Buffer& buffer : found)
    {
        std::cout << separator << R"(  {"name": ")" << buffer.name << R"(", "bytes": )" << buffer.size
                  << R"(, "age_seconds": )" << buffer.age.count() << R"(, "owner": )"
                  << printing::quoted(ownerOf(buffer)) << R"(, "is_open": )" << (buffer.isOpen ? "true" : "false")
                  << R"(, "processes": [)" << (buffer.processes.empty() ? "" : usersOf(buffer)) << R"(], "class": ")"
                  << buffers::guessedClass(buffer.name) << "\"}";
        separator = ",\n";
    }
    std::cout << (found.empty() ? "]\n" : "\n]\n");
}

int list(Arguments& arguments)
{
    const bool asJson = arguments.takeFlag("--json");
    const bool ofAllUsers = arguments.takeFlag("--all-users");
    arguments.end();
    console::setBinaryOutput();
    const std::vector<buffers::Buffer> found = buffers::all(ofAllUsers);
    asJson ? printJson(found) : printTable(found);
    return kSuccess;
}

} // namespace

const Command kList = {
    "list", "lists the buffers that are left in shared memory",
    "usage: vrx list [OPTION...]\n"
    "Lists the shared buffers that host and translator use, known by the form of their names: size, age since they "
    "were\n"
    "last written, owner, class, and the processes that have them open, as far as this user may see; on Windows only\n"
    "whether one has. A buffer does not tell its class: it is guessed by the first keys in it, and has a question "
    "mark\n"
    "behind it. What is no binary form is most likely the bodies of a block.\n\n"
    "  --all-users      those of all users, not only one's own\n"
    "  --json           as a JSON array, for programs",
    list};

} // namespace tool
