#pragma once

#include "component_data.h"
#include "mechanical/mechanical_model.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <iosfwd>
#include <string>

/// What is told beside the tree.
struct TreeExtras
{
    bool properties = false; // of the text: the free properties below their lines
    ComponentData components;
    MechanicalModel mechanical = {};
    std::string pmi = "{}"; // of the JSON, as `pmiJson` gives it
};

/// The product tree as indented text: a line for each group of equal instances, with instance names, block name, count,
/// colour and a note of what the block holds, its material and its mass; then a summary, what comes of the figures that
/// the file states, and the components, if they arrived.
void printText(std::ostream& stream, const vrx::ExcProductStructure& structure, const TreeExtras& extras = {});

/// The same tree as JSON in UTF-8: "product", "units", "mass", "properties", "blocks" (each once, by id, parts with the
/// members of `mechanicalMembers`) and "tree", where each instance has a node with its "children"; then "pmi", and
/// "component_names" and "component_materials", if they arrived.
void printJson(std::ostream& stream, const vrx::ExcProductStructure& structure, const TreeExtras& extras = {});
