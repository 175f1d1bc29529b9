#pragma once

#include "component_data.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <iosfwd>

/// The product tree as indented text: a line for each group of equal instances, with instance names, block name, count,
/// colour and a note of what the block holds. With `properties` the free properties stand below.
void printText(std::ostream& stream, const vrx::ExcProductStructure& structure, bool properties);

/// The same tree as JSON in UTF-8: "product", "units", "properties", "blocks" (each once, by id) and "tree", where each
/// instance has a node with its "children"; then "component_names" and "component_materials", if they arrived.
void printJson(std::ostream& stream, const vrx::ExcProductStructure& structure, const ComponentData& components = {});
