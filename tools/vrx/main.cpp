#include "commands/commands.h"
#include "console/console.h"
#include "mp/narrow.h"
#include "printing/escaped.h"

#include <algorithm>
#include <exception>
#include <iostream>

namespace
{

const tool::Command& commandOf(const std::string& name)
{
    const auto& commands = tool::allCommands();
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&name](const tool::Command* command) { return command->name == name; });
    if (found == commands.end())
    {
        throw tool::UsageError("unknown command: " + name);
    }
    return **found;
}

int run(std::vector<std::string> words)
{
    if (words.empty() || words.front() == "--help" || words.front() == "-h")
    {
        words = {"help"};
    }
    if (words.front() == "--version")
    {
        words.insert(words.begin(), "help");
    }
    const tool::Command& command = commandOf(words.front());
    words.erase(words.begin());
    tool::Arguments arguments(std::move(words));
    if (arguments.takeFlag("--help") || arguments.takeFlag("-h"))
    {
        std::cout << command.help << '\n';
        return tool::kSuccess;
    }
    return command.run(arguments);
}

// Names of files and of commands stand in the texts as they were given.
void tell(const std::exception& error)
{
    std::cerr << "vrx: " << printing::harmless(mp::toWide(error.what())) << '\n';
}

} // namespace

int main(int count, char** words)
{
    try
    {
        const int code = run({words + 1, words + count});
        console::flushOutput();
        return code;
    }
    catch (const tool::UsageError& error)
    {
        tell(error);
        std::cerr << "vrx --help tells how it is called.\n";
        return tool::kUsage;
    }
    catch (const std::exception& error)
    {
        tell(error);
        return tool::kUnreadable;
    }
}
