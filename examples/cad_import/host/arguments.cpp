#include "arguments.h"

#include "usage_error.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

const char* const kUsage = R"(usage: cad_host [options] <file>

Has a translator import a CAD file, STEP or IGES, and prints the product tree on standard output. Progress and messages
go to standard error.

  --json               the tree, the PMI and the mechanical data of parts as JSON
  --bodies             the exact bodies of each part: their faces, edges and vertices, area, volume and box, measured
                       from what arrived; not with --json
  --pmi-table          the dimensions, tolerances, datums and notes of each part, with the numbers of their faces and
                       edges and the saved views that show them; not with --json, which has them anyway
  --holes              the holes of each part with their threads and patterns, as a table for the shop; not with --json,
                       which has them anyway
  --properties         the free properties of the product and of each block below their lines
  --option NAME=VALUE  a setting of the import, by its name in a command; can be repeated, and a wrong name or value is
                       answered with a list of what there is
  --legacy             the older interface, which has settings of its own and tells the names and materials of components
  --view FILE          a page on which the model can be looked at: one file of HTML that needs no network
  --picture FILE       a picture of that page as PNG; needs Chromium, but no display
  --view-name NAME     the saved view with which the page and the picture open
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
  6  the tree, the page or the picture could not be made or written, or there is no saved view of the given name
)";

namespace
{

GivenSetting setting(const std::string& text)
{
    const std::size_t sign = text.find('=');
    if (sign == std::string::npos)
    {
        throw UsageError("--option takes NAME=VALUE");
    }
    return {text.substr(0, sign), text.substr(sign + 1)};
}

struct Flag
{
    std::string_view name;
    bool Arguments::*field;
};

const Flag kFlags[] = {
    {"--bodies", &Arguments::bodies},         {"--help", &Arguments::help},
    {"--holes", &Arguments::holes},           {"--json", &Arguments::json},
    {"--legacy", &Arguments::legacy},         {"--pmi-table", &Arguments::pmiTable},
    {"--properties", &Arguments::properties}, {"--quiet", &Arguments::quiet},
    {"--verbose", &Arguments::verbose},
};

// They add to the tree as text.
const Flag kTables[] = {
    {"--bodies", &Arguments::bodies},
    {"--holes", &Arguments::holes},
    {"--pmi-table", &Arguments::pmiTable},
};

struct Option
{
    std::string_view name;
    void (*take)(Arguments& arguments, const std::string& value);
};

const Option kOptions[] = {
    {"--option", [](Arguments& arguments, const std::string& value) { arguments.settings.push_back(setting(value)); }},
    {"--picture", [](Arguments& arguments, const std::string& value) { arguments.picture = value; }},
    {"--translator", [](Arguments& arguments, const std::string& value) { arguments.translator = value; }},
    {"--view", [](Arguments& arguments, const std::string& value) { arguments.view = value; }},
    {"--view-name", [](Arguments& arguments, const std::string& value) { arguments.viewName = value; }},
};

template <class Named, std::size_t Count>
const Named* find(const Named (&all)[Count], std::string_view name)
{
    const Named* const found = std::find_if(all, all + Count, [name](const Named& one) { return one.name == name; });
    return found != all + Count ? found : nullptr;
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
    const Option* const option = find(kOptions, name);
    if (option == nullptr)
    {
        throw UsageError("there is no option " + std::string(name));
    }
    if (count < 2)
    {
        throw UsageError(std::string(name) + " needs a value");
    }
    option->take(arguments, words[1]);
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
    for (const Flag& table : kTables)
    {
        if (arguments.json && arguments.*table.field)
        {
            throw UsageError(std::string(table.name) + " goes with the tree as text");
        }
    }
    if (!arguments.viewName.empty() && !arguments.makesPage())
    {
        throw UsageError("--view-name goes with --view or --picture");
    }
    if (arguments.file.empty() && !arguments.help)
    {
        throw UsageError("no file");
    }
    return arguments;
}
