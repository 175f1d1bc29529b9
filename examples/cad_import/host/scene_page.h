#pragma once

#include "mechanical/mechanical_model.h"
#include "vrx_api/vrx_api_exchange_structure.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>

/// Gathers what the translator sends of a model's looks, and writes the page on which the model is looked at: one file
/// of HTML that needs nothing else.
class ScenePage
{
public:
    void add(const vrx::ExcBlockVisualization& block);
    void add(const vrx::ExcRootAssemblyVisualization& root);

    /// The page in UTF-8, with the PMI as `pmiJson` gives it. It opens with a saved view when one is named. Throws
    /// std::runtime_error when a scene has other units than the structure, and for a view that is not there.
    std::string html(const vrx::ExcProductStructure& structure, const MechanicalModel& mechanical,
                     const std::string& pmi, const std::string& openView = {}) const;

private:
    std::string scene(const vrx::ExcProductStructure& structure, const MechanicalModel& mechanical,
                      const std::string& pmi, const std::string& openView) const;
    void checkView(const std::string& name) const;

    std::map<std::uint64_t, std::string> m_shapes; // by the block's id
    std::set<vrx::ELengthUnitType> m_units;        // of all scenes
    std::string m_annotations = "[]";
    std::string m_views = "[]";
    std::set<std::string> m_viewNames;
};
