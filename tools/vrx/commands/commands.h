#pragma once

#include "arguments.h"

#include <vector>

namespace tool
{

/// The exit codes of all commands.
enum ExitCode
{
    kSuccess = 0,
    kFindings = 1,
    kUsage = 2,
    kUnreadable = 3,
};

/// One command of the tool: each has a source of its name in this folder.
struct Command
{
    const char* name;
    const char* summary; ///< One line for the list of commands.
    const char* help;    ///< The whole help, without a newline at the end.
    int (*run)(Arguments& arguments);
};

extern const Command kCheck;
extern const Command kClean;
extern const Command kDiff;
extern const Command kHelp;
extern const Command kList;
extern const Command kRecord;
extern const Command kReplay;
extern const Command kSchema;
extern const Command kShow;

/// In the order of the help.
const std::vector<const Command*>& allCommands();

} // namespace tool
