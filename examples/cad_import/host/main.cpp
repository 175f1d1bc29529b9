// A host for CAD files: has the translator import a file, prints its product tree and shows the model.

#include "arguments.h"
#include "body_report.h"
#include "bridge/bridge.h"
#include "common/pmi_conventions.h"
#include "import_collector.h"
#include "mechanical/hole_table.h"
#include "model_failure.h"
#include "mp/narrow.h"
#include "page_picture.h"
#include "pmi/pmi_json.h"
#include "pmi/pmi_table.h"
#include "printable.h"
#include "tree_output.h"
#include "usage_error.h"
#include "write_text.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

using vrx::bridge::CancelOnInterrupt;
using vrx::bridge::HostSession;

namespace
{

enum EExitCode
{
    kImported = 0,
    kNotImported = 1,
    kWrongUsage = 2,
    kForeignFormat = 3,
    kTranslatorFailed = 4,
    kInterrupted = 5,
    kNotWritten = 6,
};

std::string defaultTranslator()
{
    return std::filesystem::read_symlink("/proc/self/exe").replace_filename("cad_translator").string();
}

bool readsFormat(const vrx::FerrantInfo& info, const std::string& file)
{
    const mp::wstring path = mp::toWide(file);
    return std::any_of(info.importFormats().begin(), info.importFormats().end(),
                       [&path](const std::shared_ptr<vrx::Format>& format) { return format->is(path); });
}

void explainFormats(const vrx::FerrantInfo& info, const std::string& file)
{
    std::cerr << "cad_host: " << mp::toNarrow(info.name()) << " does not read files like " << file << ". It reads:\n";
    for (const std::shared_ptr<vrx::Format>& format : info.importFormats())
    {
        for (const mp::wstring& filter : format->getFilters())
        {
            std::cerr << "  " << mp::toNarrow(filter) << '\n';
        }
    }
}

std::string describe(const vrx::FerrantInfo& info)
{
    std::string text = mp::toNarrow(info.name()) + ' ' + mp::toNarrow(info.version());
    for (const std::shared_ptr<vrx::ThirdpartyCore>& core : info.thirdpartyCores())
    {
        text += ", " + mp::toNarrow(core->name()) + ' ' + mp::toNarrow(core->version());
    }
    return text;
}

// Prints the tree and what else is asked for on standard output.
void print(const ReceivedModel& model, const MechanicalModel& mechanical, const Arguments& arguments)
{
    const vrx::ExcProductStructure& structure = *model.structure;
    TreeExtras extras{arguments.properties, model.components, mechanical};
    if (arguments.json)
    {
        extras.pmi = pmiJson(model.pmi, model.bodies);
        printJson(std::cout, structure, extras);
    }
    else
    {
        printText(std::cout, structure, extras);
    }
    if (arguments.bodies)
    {
        printBodies(std::cout, model.bodies, structure);
    }
    if (arguments.holes)
    {
        printHoles(std::cout, mechanical, structure);
    }
    if (arguments.pmiTable)
    {
        printPmi(std::cout, model.pmi, model.bodies, structure);
    }
    if (!std::cout.flush())
    {
        throw std::runtime_error("cannot write to standard output");
    }
}

// Writes the page and the picture that are asked for.
void show(const ReceivedModel& model, const MechanicalModel& mechanical, const Arguments& arguments)
{
    if (!arguments.makesPage())
    {
        return;
    }
    const std::string pmi = pmiJson(model.pmi, model.bodies);
    const std::string html = model.page.html(*model.structure, mechanical, pmi, arguments.viewName);
    if (!arguments.view.empty())
    {
        writeText(arguments.view, html);
    }
    if (!arguments.picture.empty())
    {
        takePicture(html, arguments.picture);
    }
}

// Tells of the model that arrived. Throws ModelFailure when its bodies are not what they should be.
void tell(ReceivedModel& model, const Arguments& arguments)
{
    const MechanicalModel mechanical(*model.structure, model.mechanical, model.bodies);
    print(model, mechanical, arguments);
    show(model, mechanical, arguments);
}

int import(const Arguments& arguments)
{
    const std::shared_ptr<vrx::ImportOptions> options = arguments.legacy
                                                            ? legacyImportOptions(arguments.file, arguments.settings)
                                                            : importOptions(arguments.file, arguments.settings);

    HostSession session({arguments.translator.empty() ? defaultTranslator() : arguments.translator});
    const CancelOnInterrupt interrupts(session);
    const vrx::FerrantInfo info = session.info();
    if (arguments.verbose)
    {
        std::cerr << "translator: " << describe(info) << '\n';
    }
    if (!readsFormat(info, arguments.file))
    {
        explainFormats(info, arguments.file);
        return kForeignFormat;
    }

    ReceivedModel model;
    {
        ImportCollector collector(arguments, model);
        const vrx::Result result = session.importFile(options, collector);
        session.finish();
        if (session.isCancelled())
        {
            throw std::runtime_error("The import was interrupted.");
        }
        if (!result.message().empty())
        {
            collector.print("cad_host: " + printable(result.message()));
        }
        if (result.code() != vrx::Result::ECode::Ok && result.code() != vrx::Result::ECode::Warning)
        {
            return kNotImported;
        }
    }
    if (!model.structure)
    {
        throw ModelFailure("The translator sent no product structure.");
    }
    try
    {
        tell(model, arguments);
    }
    catch (const ModelFailure&)
    {
        throw;
    }
    catch (const std::exception& failure)
    {
        if (CancelOnInterrupt::wasInterrupted())
        {
            throw;
        }
        std::cerr << "cad_host: " << failure.what() << '\n';
        return kNotWritten;
    }
    return kImported;
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        const Arguments arguments = parseArguments(argc, argv);
        if (arguments.help)
        {
            std::cout << kUsage;
            return kImported;
        }
        pmi_conventions::receiveMechanicalData();
        return import(arguments);
    }
    catch (const UsageError& failure)
    {
        std::cerr << "cad_host: " << failure.what() << "\n\n" << kUsage;
        return kWrongUsage;
    }
    catch (const std::exception& failure)
    {
        if (CancelOnInterrupt::wasInterrupted())
        {
            std::cerr << "cad_host: interrupted\n";
            return kInterrupted;
        }
        std::cerr << "cad_host: " << failure.what() << '\n';
        return kTranslatorFailed;
    }
}
