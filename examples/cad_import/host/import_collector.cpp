#include "import_collector.h"

#include "printable.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <iostream>
#include <utility>

ImportCollector::ImportCollector(const Arguments& arguments, ReceivedModel& model)
    : m_arguments(arguments)
    , m_model(model)
    , m_bar(arguments.quiet ? ProgressBar::EMode::Silent : ProgressBar::modeOfStandardError())
{
}

ImportCollector::~ImportCollector()
{
    m_bar.clear();
}

void ImportCollector::onProgress(const vrx::ExcProgress& progress)
{
    m_bar.show(printable(progress.stage()), progress.progress(), progress.progressMax());
}

void ImportCollector::onMessage(const mp::wstring& text)
{
    if (!m_arguments.quiet)
    {
        print(printable(text));
    }
}

void ImportCollector::onLog(const mp::wstring& text)
{
    if (m_arguments.verbose)
    {
        print("log: " + printable(text));
    }
}

void ImportCollector::onStage(vrx::ExcStageFinished::EStage stage)
{
    if (stage == vrx::ExcStageFinished::EStage::ProductStructure && m_arguments.verbose)
    {
        print("the product structure is complete");
    }
}

void ImportCollector::onObject(const std::shared_ptr<vrx::IExchangeObject>& object)
{
    if (auto structure = std::dynamic_pointer_cast<vrx::ExcProductStructure>(object))
    {
        m_model.structure = std::move(structure);
    }
    else if (const auto scene = std::dynamic_pointer_cast<vrx::ExcBlockVisualization>(object))
    {
        m_model.page.add(*scene);
    }
    else if (const auto rootScene = std::dynamic_pointer_cast<vrx::ExcRootAssemblyVisualization>(object))
    {
        m_model.page.add(*rootScene);
    }
    else if (const auto bodies = std::dynamic_pointer_cast<vrx::ExcBlockGeometry>(object))
    {
        m_model.bodies.add(*bodies);
        measure(bodies->blockId(), nullptr);
    }
    else if (const auto block = std::dynamic_pointer_cast<vrx::ExcBlockMechanicalData>(object))
    {
        m_model.pmi.add(*block);
        m_model.mechanical.push_back(block);
        measure(block->blockId(), block->miscData().get());
    }
    else if (const auto root = std::dynamic_pointer_cast<vrx::ExcRootMechanicalData>(object))
    {
        m_model.pmi.add(*root);
    }
    else if (auto names = std::dynamic_pointer_cast<vrx::LegacyComponentInstanceNames>(object))
    {
        m_model.components.names = std::move(names);
    }
    else if (auto materials = std::dynamic_pointer_cast<vrx::LegacyMaterialMap>(object))
    {
        m_model.components.materials = std::move(materials);
    }
}

bool ImportCollector::wants(const vrx::IExchangeObject& object)
{
    const mp::wstring& name = object.objectName();
    const bool isLook =
        name == vrx::ExcBlockVisualization::objName() || name == vrx::ExcRootAssemblyVisualization::objName();
    return !isLook || m_arguments.makesPage();
}

// As soon as it is known that the figures are needed, while the translator draws the parts.
void ImportCollector::measure(std::uint64_t id, const vrx::ExcMechanicalMiscData* data)
{
    if (m_arguments.bodies)
    {
        m_model.bodies.measure(id, EBox::With);
        return;
    }
    const auto block = m_model.structure ? m_model.structure->getBlockById(id) : nullptr;
    if (block && needsFigures(*block, data, m_model.bodies, m_model.structure->units()))
    {
        m_model.bodies.measure(id);
    }
}

void ImportCollector::print(const std::string& text)
{
    m_bar.clear();
    std::cerr << text << '\n';
}
