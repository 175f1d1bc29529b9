#pragma once

#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_exchange_structure.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// What crossed in an import.
struct Imported
{
    vrx::Result result;
    std::shared_ptr<vrx::ExcProductStructure> structure;
    std::map<std::uint64_t, std::shared_ptr<vrx::ExcBlockVisualization>> scenes;      // by block
    std::map<std::uint64_t, std::shared_ptr<vrx::ExcBlockGeometry>> bodies;           // by block
    std::map<std::uint64_t, std::shared_ptr<vrx::ExcBlockMechanicalData>> mechanical; // by block
    std::shared_ptr<vrx::ExcRootAssemblyVisualization> root;
    std::shared_ptr<vrx::LegacyComponentInstanceNames> names;
    std::shared_ptr<vrx::LegacyMaterialMap> materials;
    std::vector<std::shared_ptr<vrx::IExchangeObject>> objects; // these and all others but the reports on the way
    std::vector<mp::wstring> messages;
    std::vector<mp::wstring> logs;
};

/// Has the translator import a file with options of a command, which say by which interface.
Imported importFile(const std::string& file, const std::shared_ptr<vrx::ImportOptions>& options);

/// The same with settings for its format, or with none.
Imported importFile(const std::string& file, const std::shared_ptr<vrx::IFormatOptions>& settings = nullptr);

/// The product tree as the host prints it, without the first line and the last.
std::string treeText(const Imported& imported);
