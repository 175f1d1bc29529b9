#include "commands/commands.h"

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
    const tool::Command& command = commandOf(words.front());
    words.erase(words.begin());
    tool::Arguments arguments(std::move(words));
    if (arguments.takeFlag("--help"))
    {
        std::cout << command.help << '\n';
        return tool::kSuccess;
    }
    return command.run(arguments);
}

} // namespace

int main(int count, char** words)
{
    try
    {
        return run({words + 1, words + count});
    }
    catch (const tool::UsageError& error)
    {
        std::cerr << "vrx: " << error.what() << "\nvrx --help tells how it is called.\n";
        return tool::kUsage;
    }
    catch (const std::exception& error)
    {
        std::cerr << "vrx: " << error.what() << '\n';
        return tool::kUnreadable;
    }
}
