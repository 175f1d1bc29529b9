// A host for CAD files: has the translator import a file, prints its product tree and shows the model.

#include "arguments.h"
#include "body_report.h"
#include "component_data.h"
#include "mp/narrow.h"
#include "page_picture.h"
#include "printable.h"
#include "progress_bar.h"
#include "scene_page.h"
#include "translator_session.h"
#include "tree_output.h"
#include "usage_error.h"
#include "vrx_api/vrx_api_exchange_structure.h"
#include "vrx_api/vrx_api_exchange_visualization.h"
#include "write_text.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

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

class Listener : public ImportListener
{
public:
    explicit Listener(const Arguments& arguments)
        : m_arguments(arguments)
        , m_bar(arguments.quiet ? ProgressBar::EMode::Silent : ProgressBar::modeOfStandardError())
    {
    }

    ~Listener() override { m_bar.clear(); }

    void onProgress(const vrx::ExcProgress& progress) override
    {
        m_bar.show(printable(progress.stage()), progress.progress(), progress.progressMax());
    }

    void onMessage(const mp::wstring& text) override
    {
        if (!m_arguments.quiet)
        {
            print(printable(text));
        }
    }

    void onLog(const mp::wstring& text) override
    {
        if (m_arguments.verbose)
        {
            print("log: " + printable(text));
        }
    }

    void onStage(vrx::ExcStageFinished::EStage stage) override
    {
        if (stage == vrx::ExcStageFinished::EStage::ProductStructure && m_arguments.verbose)
        {
            print("the product structure is complete");
        }
    }

    void onObject(const std::shared_ptr<vrx::IExchangeObject>& object) override
    {
        if (auto structure = std::dynamic_pointer_cast<vrx::ExcProductStructure>(object))
        {
            m_structure = std::move(structure);
        }
        else if (const auto block = std::dynamic_pointer_cast<vrx::ExcBlockVisualization>(object))
        {
            m_page.add(*block);
        }
        else if (const auto root = std::dynamic_pointer_cast<vrx::ExcRootAssemblyVisualization>(object))
        {
            m_page.add(*root);
        }
        else if (const auto bodies = std::dynamic_pointer_cast<vrx::ExcBlockGeometry>(object))
        {
            m_bodies.add(*bodies);
        }
        else if (auto names = std::dynamic_pointer_cast<vrx::LegacyComponentInstanceNames>(object))
        {
            m_components.names = std::move(names);
        }
        else if (auto materials = std::dynamic_pointer_cast<vrx::LegacyMaterialMap>(object))
        {
            m_components.materials = std::move(materials);
        }
    }

    bool wants(const vrx::IExchangeObject& object) override
    {
        if (object.objectName() == vrx::ExcBlockGeometry::objName())
        {
            return m_arguments.bodies;
        }
        const bool structure = object.objectName() == vrx::ExcProductStructure::objName();
        return structure || !m_arguments.view.empty() || !m_arguments.picture.empty();
    }

    void print(const std::string& text)
    {
        m_bar.clear();
        std::cerr << text << '\n';
    }

    const std::shared_ptr<vrx::ExcProductStructure>& structure() const { return m_structure; }
    ScenePage takePage() { return std::move(m_page); }
    const BodyReport& bodies() const { return m_bodies; }
    const ComponentData& components() const { return m_components; }

private:
    const Arguments& m_arguments;
    ProgressBar m_bar;
    std::shared_ptr<vrx::ExcProductStructure> m_structure;
    ScenePage m_page;
    BodyReport m_bodies;
    ComponentData m_components;
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
void print(const BodyReport& bodies, const TreeExtras& extras, const vrx::ExcProductStructure& structure,
           const Arguments& arguments)
{
    if (arguments.json)
    {
        printJson(std::cout, structure, extras);
    }
    else
    {
        printText(std::cout, structure, extras);
    }
    if (arguments.bodies)
    {
        bodies.print(std::cout, structure);
    }
    if (!std::cout.flush())
    {
        throw std::runtime_error("cannot write to standard output");
    }
}

// Writes the page and the picture that are asked for.
void show(const ScenePage& page, const vrx::ExcProductStructure& structure, const Arguments& arguments)
{
    if (arguments.view.empty() && arguments.picture.empty())
    {
        return;
    }
    const std::string html = page.html(structure);
    if (!arguments.view.empty())
    {
        writeText(arguments.view, html);
    }
    if (!arguments.picture.empty())
    {
        takePicture(html, arguments.picture);
    }
}

int import(const Arguments& arguments)
{
    const std::shared_ptr<vrx::ImportOptions> options = arguments.legacy
                                                            ? legacyImportOptions(arguments.file, arguments.settings)
                                                            : importOptions(arguments.file, arguments.settings);

    TranslatorSession session(arguments.translator.empty() ? defaultTranslator() : arguments.translator);
    const vrx::FerrantInfo info = session.info();
    if (info.name().empty())
    {
        throw TranslatorFailure("The translator does not say what it is.");
    }
    if (arguments.verbose)
    {
        std::cerr << "translator: " << describe(info) << '\n';
    }
    if (!readsFormat(info, arguments.file))
    {
        explainFormats(info, arguments.file);
        return kForeignFormat;
    }

    std::shared_ptr<vrx::ExcProductStructure> structure;
    ScenePage page;
    BodyReport bodies;
    TreeExtras extras{arguments.properties, {}};
    {
        Listener listener(arguments);
        const vrx::Result result = session.import(options, listener);
        if (ChildProcess::wasInterrupted())
        {
            throw TranslatorFailure("The import was interrupted.");
        }
        if (!result.message().empty())
        {
            listener.print("cad_host: " + printable(result.message()));
        }
        if (result.code() != vrx::Result::ECode::Ok && result.code() != vrx::Result::ECode::Warning)
        {
            return kNotImported;
        }
        structure = listener.structure();
        page = listener.takePage();
        bodies = listener.bodies();
        extras.components = listener.components();
    }
    if (!structure)
    {
        throw TranslatorFailure("The translator sent no product structure.");
    }
    try
    {
        print(bodies, extras, *structure, arguments);
        show(page, *structure, arguments);
    }
    catch (const std::exception& failure)
    {
        if (ChildProcess::wasInterrupted())
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
        return import(arguments);
    }
    catch (const UsageError& failure)
    {
        std::cerr << "cad_host: " << failure.what() << "\n\n" << kUsage;
        return kWrongUsage;
    }
    catch (const std::exception& failure)
    {
        if (ChildProcess::wasInterrupted())
        {
            std::cerr << "cad_host: interrupted\n";
            return kInterrupted;
        }
        std::cerr << "cad_host: " << failure.what() << '\n';
        return kTranslatorFailed;
    }
}
