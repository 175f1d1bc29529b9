#include "arguments.h"

#include <string_view>

const char* const kUsage = R"(usage: step_host [options] <file.step>

Has a translator import a STEP file and prints the product tree on standard output. Progress and messages go to standard
error.

  --json               the tree as JSON
  --bodies             the exact bodies of each part: their faces, edges and vertices, area, volume and box, measured
                       from what arrived; not with --json
  --properties         the free properties of the product and of each block below their lines
  --layers MODE        layer names: asm_rep (with the blocks) or saved_visu_rep (not with the blocks)
  --pmi MODE           product manufacturing information: all or none
  --view FILE          a page on which the model can be looked at: one file of HTML that needs no network
  --picture FILE       a picture of that page as PNG; needs Chromium, but no display
  --translator PATH    the translator to start; default: step_translator beside this program
  --quiet              neither progress nor messages
  --verbose            the translator's log as well
  --help               this text

exit codes:
  0  the file is imported
  1  the translator could not import the file
  2  the command line is wrong
  3  the translator does not read files of this format
  4  the translator could not be started, died, or broke the protocol
  5  interrupted
  6  the page or the picture could not be made
)";

namespace
{

vrx::ELayerNameProcessingModeType layerMode(std::string_view mode)
{
    if (mode == "asm_rep")
    {
        return vrx::ELayerNameProcessingModeType::AsmRep;
    }
    if (mode == "saved_visu_rep")
    {
        return vrx::ELayerNameProcessingModeType::SavedVisuRep;
    }
    throw UsageError("--layers takes asm_rep or saved_visu_rep");
}

vrx::EVisuPMIProcessingMode pmiMode(std::string_view mode)
{
    if (mode == "all")
    {
        return vrx::EVisuPMIProcessingMode::All;
    }
    if (mode == "none")
    {
        return vrx::EVisuPMIProcessingMode::None;
    }
    throw UsageError("--pmi takes all or none");
}

} // namespace

Arguments parseArguments(int argc, char** argv)
{
    Arguments arguments;
    const auto value = [&](int& index) -> std::string {
        if (index + 1 >= argc)
        {
            throw UsageError(std::string(argv[index]) + " needs a value");
        }
        return argv[++index];
    };
    bool optionsEnded = false;
    for (int i = 1; i < argc; ++i)
    {
        const std::string_view argument = argv[i];
        if (optionsEnded || argument.empty() || argument.front() != '-')
        {
            if (!arguments.file.empty())
            {
                throw UsageError("more than one file");
            }
            arguments.file = argument;
        }
        else if (argument == "--")
        {
            optionsEnded = true;
        }
        else if (argument == "--help")
        {
            arguments.help = true;
        }
        else if (argument == "--bodies")
        {
            arguments.bodies = true;
        }
        else if (argument == "--json")
        {
            arguments.json = true;
        }
        else if (argument == "--properties")
        {
            arguments.properties = true;
        }
        else if (argument == "--quiet")
        {
            arguments.quiet = true;
        }
        else if (argument == "--verbose")
        {
            arguments.verbose = true;
        }
        else if (argument == "--view")
        {
            arguments.view = value(i);
        }
        else if (argument == "--picture")
        {
            arguments.picture = value(i);
        }
        else if (argument == "--translator")
        {
            arguments.translator = value(i);
        }
        else if (argument == "--layers")
        {
            arguments.step.setLayerNameProcessingMode(layerMode(value(i)));
        }
        else if (argument == "--pmi")
        {
            arguments.step.setVisuPMIProcessingMode(pmiMode(value(i)));
        }
        else
        {
            throw UsageError("there is no option " + std::string(argument));
        }
    }
    if (arguments.bodies && arguments.json)
    {
        throw UsageError("--bodies goes with the tree as text");
    }
    if (arguments.file.empty() && !arguments.help)
    {
        throw UsageError("no file");
    }
    return arguments;
}
