#pragma once

#include "structure/block_content.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <cstdint>
#include <map>
#include <memory>

/// The names of all components, by their handles.
std::shared_ptr<vrx::LegacyComponentInstanceNames> componentNames(const vrx::ExcProductStructure& structure);

/// The materials of all components, by their handles: those of their blocks.
std::shared_ptr<vrx::LegacyMaterialMap> componentMaterials(const vrx::ExcProductStructure& structure,
                                                           const std::map<std::uint64_t, Material>& ofBlocks);
