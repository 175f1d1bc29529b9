#include "commands/commands.h"

#include <algorithm>
#include <iostream>

namespace tool
{

static int help(Arguments& arguments)
{
    if (arguments.takeFlag("--version"))
    {
        arguments.end();
        std::cout << "vrx " VRX_VERSION "\n";
        return kSuccess;
    }
    if (arguments.hasOperand())
    {
        const std::string name = arguments.takeOperand("a command");
        arguments.end();
        const auto& commands = allCommands();
        const auto found = std::find_if(commands.begin(), commands.end(),
                                        [&name](const Command* command) { return command->name == name; });
        if (found == commands.end())
        {
            throw UsageError("unknown command: " + name);
        }
        std::cout << (*found)->help << '\n';
        return kSuccess;
    }
    arguments.end();
    std::cout << "usage: vrx COMMAND [ARGUMENT...]\n"
                 "Records, replays, shows, checks and compares what crosses between a host and a translator.\n\n";
    for (const Command* const command : allCommands())
    {
        const std::string name = command->name;
        std::cout << "  " << name << std::string(10 - name.size(), ' ') << command->summary << '\n';
    }
    std::cout << "\nvrx COMMAND --help tells more of each.\n";
    return kSuccess;
}

const Command kHelp = {"help", "tells of a command",
                       "usage: vrx help [COMMAND]\n"
                       "Tells of all commands, or of one, as vrx COMMAND --help and -h do.\n\n"
                       "  --version  tells the version instead, as vrx --version does",
                       help};

const std::vector<const Command*>& allCommands()
{
    static const std::vector<const Command*> commands = {
        &kCheck, &kClean, &kDiff, &kHelp, &kList, &kRecord, &kReplay, &kSchema, &kShow,
    };
    return commands;
}

} // namespace tool
