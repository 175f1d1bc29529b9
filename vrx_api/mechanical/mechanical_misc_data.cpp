#include "vrx_api/mechanical/mechanical_misc_data.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcMechanicalMiscData::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("misc_data"), self.m_miscData);
    fields.filled(WIDE("wcs"), self.m_worldCoordinateSystems);
    fields.filled(WIDE("layers"), self.m_layers);
    fields.filled(WIDE("layer_filters"), self.m_layerFilters);
    fields.filled(WIDE("materials"), self.m_materials);
    fields.filled(WIDE("note_parameters"), self.m_noteParameters);
    fields.filled(WIDE("symmetries"), self.m_symmetries);
    fields.filled(WIDE("display_sets"), self.m_displaySets);
}
template struct Described<ExcMechanicalMiscData>;

void ExcMechanicalMiscData::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMechanicalMiscData");
}

void ExcMechanicalMiscData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcMechanicalMiscData::addWorldCoordinateSystem(const std::shared_ptr<ExcMiscWCS>& system)
{
    add(m_worldCoordinateSystems, system, "ExcMechanicalMiscData: attempt to add null WCS object.");
}

void ExcMechanicalMiscData::addLayer(const std::shared_ptr<ExcMiscLayer>& layer)
{
    add(m_layers, layer, "ExcMechanicalMiscData: attempt to add null Layer object.");
}

void ExcMechanicalMiscData::addLayerFilter(const std::shared_ptr<ExcMiscLayerFilter>& filter)
{
    add(m_layerFilters, filter, "ExcMechanicalMiscData: attempt to add null Layer Filter object.");
}

void ExcMechanicalMiscData::addMaterial(const std::shared_ptr<ExcMiscMaterial>& material)
{
    add(m_materials, material, "ExcMechanicalMiscData: attempt to add null Material object.");
}

void ExcMechanicalMiscData::addNoteParameters(const std::shared_ptr<ExcMiscNoteParameters>& parameters)
{
    add(m_noteParameters, parameters, "ExcMechanicalMiscData: attempt to add null Note Parameters object.");
}

void ExcMechanicalMiscData::addSymmetry(const std::shared_ptr<ExcMiscSymmetry>& symmetry)
{
    add(m_symmetries, symmetry, "ExcMechanicalMiscData: attempt to add null Symmetry object.");
}

void ExcMechanicalMiscData::addDisplaySet(const std::shared_ptr<ExcMiscDisplaySet>& set)
{
    add(m_displaySets, set, "ExcMechanicalMiscData: attempt to add null Display Set object.");
}

} // namespace vrx
