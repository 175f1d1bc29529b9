#include "commands/commands.h"
#include "record/recorder.h"
#include "record/recording.h"

#include <filesystem>

namespace tool
{

static int record(Arguments& arguments)
{
    const std::string path = arguments.takeOption("-o", "");
    const bool overwrite = arguments.takeFlag("--force");
    const bool isVerbose = arguments.takeFlag("--verbose");
    const std::vector<std::string> command = arguments.takeRest();
    arguments.end();
    if (path.empty())
    {
        throw UsageError("-o FILE is missing");
    }
    if (path == "-")
    {
        throw UsageError("standard output belongs to the host: -o needs a file");
    }
    if (command.empty())
    {
        throw UsageError("the translator is missing: -- TRANSLATOR ARGUMENT...");
    }
    // A translator that cannot be started leaves no capture, and none that is there is lost.
    record::Recorder recorder(command);
    record::Recording recording(path, overwrite, isVerbose);
    recording.start(command);
    return recorder.run(recording);
}

const Command kRecord = {
    "record", "records what crosses between a host and its translator",
    "usage: vrx record -o FILE [--force] [--verbose] -- TRANSLATOR [ARGUMENT...]\n"
    "Is started by a host as its translator, and starts the translator. Passes all messages on, unchanged, in both\n"
    "directions, and keeps them in a capture with their times and the content of the buffers that they name. Where a\n"
    "host takes the name of a program only, a script does:\n"
    "\n"
    "  #!/bin/sh\n"
    "  exec vrx record -o session.vrxcap -- cad_translator\n"
    "\n"
    "  -o FILE      the capture\n"
    "  --force      overwrites a file that exists\n"
    "  --verbose    prints a line per message on standard error\n"
    "\n"
    "The exit code is the translator's, and 1 when it was killed. SIGTERM and SIGINT end the translator. A recording\n"
    "that was killed can be read up to its last whole message.",
    record};

} // namespace tool
