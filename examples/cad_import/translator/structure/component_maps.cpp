#include "structure/component_maps.h"

#include "common/material_units.h"

#include <cstdint>
#include <map>

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

vrx::LegacyMaterialMap::Material componentMaterial(const vrx::ExcMiscMaterial& stated)
{
    vrx::LegacyMaterialMap::Material material;
    material.hasMaterial = true;
    material.name = stated.name();
    if (const auto density = stated.get(vrx::ExcMiscMaterial::EProperty::Density))
    {
        // The map's densities are in g/cm3.
        material.density = units::density(*density, vrx::ELengthUnitType::Unknown).value_or(0) / 1000;
    }
    return material;
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
                                                           const std::vector<StatedMaterial>& ofBlocks)
{
    std::map<std::uint64_t, vrx::LegacyMaterialMap::Material> known;
    for (const bool ofParts : {true, false})
    {
        for (const StatedMaterial& stated : ofBlocks)
        {
            if (stated.solids.empty() == ofParts && stated.ofAllSolids)
            {
                known.insert({stated.block, componentMaterial(*stated.material)});
            }
        }
    }
    auto materials = std::make_shared<vrx::LegacyMaterialMap>();
    std::uint64_t handle = 0;
    for (const auto& component : componentsOf(structure))
    {
        materials->addMaterial(OdDbHandle(++handle), known[component->blockId()]);
    }
    return materials;
}
