#include "structure/component_maps.h"

#include <vector>

namespace
{

// The component with the handle 1 stands first.
std::vector<std::shared_ptr<vrx::ExcBlockReference>> componentsOf(const vrx::ExcProductStructure& structure)
{
    auto components = structure.rootBlockReferences();
    for (const std::shared_ptr<vrx::ExcBlock>& block : structure.blocks())
    {
        components.insert(components.end(), block->blockReferences().begin(), block->blockReferences().end());
    }
    return components;
}

} // namespace

std::shared_ptr<vrx::LegacyComponentInstanceNames> componentNames(const vrx::ExcProductStructure& structure)
{
    auto names = std::make_shared<vrx::LegacyComponentInstanceNames>();
    std::uint64_t handle = 0;
    for (const auto& component : componentsOf(structure))
    {
        names->addInstanceName(OdDbHandle(++handle), component->name());
    }
    return names;
}

std::shared_ptr<vrx::LegacyMaterialMap> componentMaterials(const vrx::ExcProductStructure& structure,
                                                           const std::map<std::uint64_t, Material>& ofBlocks)
{
    auto materials = std::make_shared<vrx::LegacyMaterialMap>();
    std::uint64_t handle = 0;
    for (const auto& component : componentsOf(structure))
    {
        vrx::LegacyMaterialMap::Material material;
        const auto found = ofBlocks.find(component->blockId());
        if (found != ofBlocks.end())
        {
            material.hasMaterial = true;
            material.name = found->second.name;
            material.density = found->second.density;
        }
        materials->addMaterial(OdDbHandle(++handle), material);
    }
    return materials;
}
