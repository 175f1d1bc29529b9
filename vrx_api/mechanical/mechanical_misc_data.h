#pragma once

#include "vrx_api/common/misc_data.h"
#include "vrx_api/mechanical/misc_display_set.h"
#include "vrx_api/mechanical/misc_layer.h"
#include "vrx_api/mechanical/misc_layer_filter.h"
#include "vrx_api/mechanical/misc_material.h"
#include "vrx_api/mechanical/misc_note_parameters.h"
#include "vrx_api/mechanical/misc_symmetry.h"
#include "vrx_api/mechanical/misc_wcs.h"

#include <memory>
#include <vector>

namespace vrx
{

/// What the model of a block holds beside its annotations: coordinate systems, layers, materials and more. There is no
/// lookup by id: walk the vectors. The operations that add log a null pointer and add nothing. Copies share all but the
/// free properties.
class VRX_API ExcMechanicalMiscData : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    ExcMiscData& miscData() { return m_miscData; }
    const ExcMiscData& miscData() const { return m_miscData; }

    const std::vector<std::shared_ptr<ExcMiscWCS>>& worldCoordinateSystems() const { return m_worldCoordinateSystems; }
    void addWorldCoordinateSystem(const std::shared_ptr<ExcMiscWCS>& system);

    const std::vector<std::shared_ptr<ExcMiscLayer>>& layers() const { return m_layers; }
    void addLayer(const std::shared_ptr<ExcMiscLayer>& layer);

    const std::vector<std::shared_ptr<ExcMiscLayerFilter>>& layerFilters() const { return m_layerFilters; }
    void addLayerFilter(const std::shared_ptr<ExcMiscLayerFilter>& filter);

    const std::vector<std::shared_ptr<ExcMiscMaterial>>& materials() const { return m_materials; }
    void addMaterial(const std::shared_ptr<ExcMiscMaterial>& material);

    const std::vector<std::shared_ptr<ExcMiscNoteParameters>>& noteParameters() const { return m_noteParameters; }
    void addNoteParameters(const std::shared_ptr<ExcMiscNoteParameters>& parameters);

    const std::vector<std::shared_ptr<ExcMiscSymmetry>>& symmetries() const { return m_symmetries; }
    void addSymmetry(const std::shared_ptr<ExcMiscSymmetry>& symmetry);

    const std::vector<std::shared_ptr<ExcMiscDisplaySet>>& displaySets() const { return m_displaySets; }
    void addDisplaySet(const std::shared_ptr<ExcMiscDisplaySet>& set);

private:
    friend struct Described<ExcMechanicalMiscData>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<std::shared_ptr<ExcMiscWCS>> m_worldCoordinateSystems;
    std::vector<std::shared_ptr<ExcMiscLayer>> m_layers;
    std::vector<std::shared_ptr<ExcMiscLayerFilter>> m_layerFilters;
    ExcMiscData m_miscData;
    std::vector<std::shared_ptr<ExcMiscMaterial>> m_materials;
    std::vector<std::shared_ptr<ExcMiscNoteParameters>> m_noteParameters;
    std::vector<std::shared_ptr<ExcMiscSymmetry>> m_symmetries;
    std::vector<std::shared_ptr<ExcMiscDisplaySet>> m_displaySets;
};

} // namespace vrx
