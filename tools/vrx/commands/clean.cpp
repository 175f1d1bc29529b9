#include "buffers/buffers.h"
#include "commands/commands.h"
#include "console/progress.h"
#include "measures.h"
#include "printing/escaped.h"

#include <iostream>
#include <vector>

namespace tool
{

namespace
{

// What became of one buffer.
struct Outcome
{
    buffers::Buffer buffer;
    std::string keptBecause; ///< Empty when it was removed.
};

std::vector<Outcome> removeOlderThan(std::chrono::seconds age, bool isTrial)
{
    std::vector<Outcome> outcomes;
    console::Progress progress;
    for (const buffers::Buffer& buffer : buffers::all(false))
    {
        progress.step("buffer " + buffer.name);
        if (buffer.age < age)
        {
            outcomes.push_back({buffer, "it is younger than " + roughly(age)});
        }
        else if (isTrial || buffer.isOpen)
        {
            outcomes.push_back({buffer, buffer.isOpen ? "a process has it open" : ""});
        }
        else
        {
            outcomes.push_back({buffer, buffers::removeUnused(buffer)});
        }
    }
    return outcomes;
}

void printLines(const std::vector<Outcome>& outcomes, bool isTrial)
{
    for (const Outcome& outcome : outcomes)
    {
        const char* const removed = isTrial ? "would remove " : "removed ";
        std::cout << (outcome.keptBecause.empty() ? removed : "kept ") << outcome.buffer.name << ", "
                  << counted(outcome.buffer.size) << " bytes, " << roughly(outcome.buffer.age) << " old"
                  << (outcome.keptBecause.empty() ? "" : ": " + outcome.keptBecause) << '\n';
    }
}

void printJson(const std::vector<Outcome>& outcomes, bool isTrial)
{
    std::cout << '[';
    const char* separator = "\n";
    for (const Outcome& outcome : outcomes)
    {
        const std::string reason = outcome.keptBecause.empty() && isTrial ? "this is a trial" : outcome.keptBecause;
        std::cout << separator << R"(  {"name": ")" << outcome.buffer.name << R"(", "bytes": )" << outcome.buffer.size
                  << R"(, "age_seconds": )" << outcome.buffer.age.count() << R"(, "removed": )"
                  << (reason.empty() ? "true" : "false") << R"(, "kept_because": )"
                  << printing::quoted(mp::wstring(reason.begin(), reason.end())) << '}';
        separator = ",\n";
    }
    std::cout << (outcomes.empty() ? "]\n" : "\n]\n");
}

int clean(Arguments& arguments)
{
    const bool asJson = arguments.takeFlag("--json");
    const bool isTrial = arguments.takeFlag("--dry-run");
    const std::chrono::seconds age = durationOf(arguments.takeOption("--older-than", "1h"));
    arguments.end();
    const std::vector<Outcome> outcomes = removeOlderThan(age, isTrial);
    asJson ? printJson(outcomes, isTrial) : printLines(outcomes, isTrial);
    return kSuccess;
}

} // namespace

const Command kClean = {
    "clean", "removes buffers that nobody uses from shared memory",
    "usage: vrx clean [OPTION...]\n"
    "Removes shared buffers of this user that no living process has open and that were not written for an hour, and\n"
    "tells of each what became of it. A buffer that waits for its reader is open in no process: don't go below the "
    "time\n"
    "that a translation takes. Processes of other users, and of other containers, are not seen.\n\n"
    "  --older-than TIME  another time than 1h: 90s, 15m, 2d\n"
    "  --dry-run          removes nothing, and tells what would be removed\n"
    "  --json             as a JSON array, for programs",
    clean};

} // namespace tool
