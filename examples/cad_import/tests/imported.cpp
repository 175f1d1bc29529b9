#include "imported.h"

#include "bridge/host_session.h"
#include "host/tree_output.h"
#include "mp/narrow.h"

#include <sstream>

namespace
{

class Keeper : public vrx::bridge::Listener
{
public:
    explicit Keeper(Imported& imported)
        : m_imported(imported)
    {
    }

    void onMessage(const mp::wstring& text) override { m_imported.messages.push_back(text); }
    void onLog(const mp::wstring& text) override { m_imported.logs.push_back(text); }
    void onObject(const std::shared_ptr<vrx::IExchangeObject>& object) override
    {
        m_imported.objects.push_back(object);
        if (const auto scene = std::dynamic_pointer_cast<vrx::ExcBlockVisualization>(object))
        {
            m_imported.scenes[scene->blockId()] = scene;
        }
        else if (const auto bodies = std::dynamic_pointer_cast<vrx::ExcBlockGeometry>(object))
        {
            m_imported.bodies[bodies->blockId()] = bodies;
        }
        else if (const auto data = std::dynamic_pointer_cast<vrx::ExcBlockMechanicalData>(object))
        {
            m_imported.mechanical[data->blockId()] = data;
        }
        else if (const auto root = std::dynamic_pointer_cast<vrx::ExcRootAssemblyVisualization>(object))
        {
            m_imported.root = root;
        }
        else if (const auto structure = std::dynamic_pointer_cast<vrx::ExcProductStructure>(object))
        {
            m_imported.structure = structure;
        }
        else if (const auto names = std::dynamic_pointer_cast<vrx::LegacyComponentInstanceNames>(object))
        {
            m_imported.names = names;
        }
        else if (const auto materials = std::dynamic_pointer_cast<vrx::LegacyMaterialMap>(object))
        {
            m_imported.materials = materials;
        }
    }

private:
    Imported& m_imported;
};

} // namespace

Imported importFile(const std::string& file, const std::shared_ptr<vrx::ImportOptions>& options)
{
    options->setFile(mp::toWide(file));
    Imported imported;
    Keeper keeper(imported);
    imported.result = vrx::bridge::HostSession({CAD_TRANSLATOR}).importFile(options, keeper);
    return imported;
}

Imported importFile(const std::string& file, const std::shared_ptr<vrx::IFormatOptions>& settings)
{
    const auto options = vrx::Command::newImportOptions();
    options->setFormatOptions(settings);
    return importFile(file, options);
}

std::string treeText(const Imported& imported)
{
    std::ostringstream stream;
    printText(stream, *imported.structure);
    const std::string text = stream.str();
    const std::size_t begin = text.find('\n') + 1;
    return text.substr(begin, text.rfind('\n', text.size() - 2) + 1 - begin);
}
