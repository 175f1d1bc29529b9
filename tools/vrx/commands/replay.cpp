#include "commands/commands.h"
#include "replay/replayer.h"

#include <fstream>

namespace tool
{

static int replay(Arguments& arguments)
{
    const bool inRealTime = arguments.takeFlag("--real-time");
    const std::string path = arguments.takeOperand("a capture");
    arguments.end();
    std::ifstream capture(path, std::ios::binary);
    if (!capture)
    {
        throw InputError("cannot open " + path);
    }
    return replay::Replayer(capture, inRealTime).run();
}

const Command kReplay = {
    "replay", "answers a host with what was recorded",
    "usage: vrx replay [--real-time] FILE\n"
    "Is started by a host as its translator and answers each command with the next recorded answers to a command of "
    "its\n"
    "type, or with the last ones again when none is left. Buffers get new names; all else is as it was recorded. What\n"
    "the host asks for in its commands is not looked at. Objects that a host sends are dropped.\n"
    "\n"
    "  --real-time  keeps the times between a command and its answers\n"
    "\n"
    "Where the recording ends without an answer, so does the replay, with exit code 1.",
    replay};

} // namespace tool
