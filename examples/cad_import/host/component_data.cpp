#include "component_data.h"

#include "printable.h"

#include <cstdint>
#include <ostream>

namespace
{

vrx::LegacyMaterialMap::Material materialOf(const ComponentData& components, const OdDbHandle& handle)
{
    if (!components.materials)
    {
        return {};
    }
    const auto found = components.materials->map().find(handle);
    return found != components.materials->map().end() ? found->second : vrx::LegacyMaterialMap::Material();
}

void printMaterial(std::ostream& stream, const vrx::LegacyMaterialMap::Material& material)
{
    if (material.hasMaterial)
    {
        stream << ", material " << printable(material.name);
        if (material.density > 0)
        {
            stream << ", density " << material.density << " g/cm3";
        }
    }
}

} // namespace

void printComponents(std::ostream& stream, const ComponentData& components)
{
    if (!components.names)
    {
        return;
    }
    stream << "components\n";
    for (const auto& [handle, name] : components.names->map())
    {
        stream << "  " << static_cast<std::uint64_t>(handle) << ": " << printable(name);
        printMaterial(stream, materialOf(components, handle));
        stream << '\n';
    }
}
