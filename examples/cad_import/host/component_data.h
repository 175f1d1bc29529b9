#pragma once

#include "vrx_api/vrx_api_exchange_object.h"

#include <iosfwd>
#include <memory>

/// What the older interface tells of components by their handles; null for what did not arrive.
struct ComponentData
{
    std::shared_ptr<vrx::LegacyComponentInstanceNames> names;
    std::shared_ptr<vrx::LegacyMaterialMap> materials;
};

/// A line for each component: its handle, its name, and its material with the density.
void printComponents(std::ostream& stream, const ComponentData& components);
