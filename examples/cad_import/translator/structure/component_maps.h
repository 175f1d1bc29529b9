#pragma once

#include "mechanical/materials.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <memory>
#include <vector>

/// The names of all components, by their handles.
std::shared_ptr<vrx::LegacyComponentInstanceNames> componentNames(const vrx::ExcProductStructure& structure);

/// The materials of all components, by their handles: the first that holds for all of their
/// blocks, with densities in g/cm3.
std::shared_ptr<vrx::LegacyMaterialMap> componentMaterials(const vrx::ExcProductStructure& structure,
                                                           const std::vector<StatedMaterial>& ofBlocks);
