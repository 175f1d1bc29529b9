#include "arguments.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

const char* const kUsage = R"(usage: cad_host [options] <file>

Has a translator import a CAD file, STEP or IGES, and prints the product tree on standard output. Progress and messages
go to standard error.

  --json               the tree as JSON
  --bodies             the exact bodies of each part: their faces, edges and vertices, area, volume and box, measured
                       from what arrived; not with --json
  --properties         the free properties of the product and of each block below their lines
  --layers MODE        layer names of STEP files: asm_rep (with the blocks) or saved_visu_rep (not with the blocks)
  --pmi MODE           product manufacturing information of STEP files: all or none
  --hidden MODE        hidden entities of IGES files: all, none or only_with_visible_links
  --entities MODE      entities of IGES files: root_only or root_and_nonroot
  --view FILE          a page on which the model can be looked at: one file of HTML that needs no network
  --picture FILE       a picture of that page as PNG; needs Chromium, but no display
  --translator PATH    the translator to start; default: cad_translator beside this program
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
  6  the tree, the page or the picture could not be made or written
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

vrx::ETranslateHiddenEntitiesModeType hiddenMode(std::string_view mode)
{
    if (mode == "all")
    {
        return vrx::ETranslateHiddenEntitiesModeType::All;
    }
    if (mode == "none")
    {
        return vrx::ETranslateHiddenEntitiesModeType::None;
    }
    if (mode == "only_with_visible_links")
    {
        return vrx::ETranslateHiddenEntitiesModeType::OnlyWithVisibleLinks;
    }
    throw UsageError("--hidden takes all, none or only_with_visible_links");
}

vrx::EImportEntities entitiesMode(std::string_view mode)
{
    if (mode == "root_only")
    {
        return vrx::EImportEntities::RootOnly;
    }
    if (mode == "root_and_nonroot")
    {
        return vrx::EImportEntities::RootAndNonroot;
    }
    throw UsageError("--entities takes root_only or root_and_nonroot");
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

struct Flag
{
    std::string_view name;
    bool Arguments::*field;
};

const Flag kFlags[] = {
    {"--bodies", &Arguments::bodies},         {"--help", &Arguments::help},   {"--json", &Arguments::json},
    {"--properties", &Arguments::properties}, {"--quiet", &Arguments::quiet}, {"--verbose", &Arguments::verbose},
};

struct Setting
{
    std::string_view name;
    void (*take)(Arguments& arguments, const std::string& value);
};

const Setting kSettings[] = {
    {"--entities",
     [](Arguments& arguments, const std::string& value) { arguments.iges.setImportEntities(entitiesMode(value)); }},
    {"--hidden",
     [](Arguments& arguments, const std::string& value) { arguments.iges.setHiddenEntitiesMode(hiddenMode(value)); }},
    {"--layers", [](Arguments& arguments,
                    const std::string& value) { arguments.step.setLayerNameProcessingMode(layerMode(value)); }},
    {"--picture", [](Arguments& arguments, const std::string& value) { arguments.picture = value; }},
    {"--pmi",
     [](Arguments& arguments, const std::string& value) { arguments.step.setVisuPMIProcessingMode(pmiMode(value)); }},
    {"--translator", [](Arguments& arguments, const std::string& value) { arguments.translator = value; }},
    {"--view", [](Arguments& arguments, const std::string& value) { arguments.view = value; }},
};

template <class Option, std::size_t Count>
const Option* find(const Option (&options)[Count], std::string_view name)
{
    const Option* const found =
        std::find_if(options, options + Count, [name](const Option& option) { return option.name == name; });
    return found != options + Count ? found : nullptr;
}

// Takes one option, with its value where it has one; the number of words that it took.
int takeOption(Arguments& arguments, char** words, int count)
{
    const std::string_view name = words[0];
    if (const Flag* const flag = find(kFlags, name))
    {
        arguments.*flag->field = true;
        return 1;
    }
    const Setting* const setting = find(kSettings, name);
    if (setting == nullptr)
    {
        throw UsageError("there is no option " + std::string(name));
    }
    if (count < 2)
    {
        throw UsageError(std::string(name) + " needs a value");
    }
    setting->take(arguments, words[1]);
    return 2;
}

} // namespace

Arguments parseArguments(int argc, char** argv)
{
    Arguments arguments;
    bool optionsEnded = false;
    int next = 1;
    while (next < argc)
    {
        const std::string_view word = argv[next];
        if (!optionsEnded && word == "--")
        {
            optionsEnded = true;
            ++next;
        }
        else if (!optionsEnded && !word.empty() && word.front() == '-')
        {
            next += takeOption(arguments, argv + next, argc - next);
        }
        else if (arguments.file.empty())
        {
            arguments.file = word;
            ++next;
        }
        else
        {
            throw UsageError("more than one file");
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
