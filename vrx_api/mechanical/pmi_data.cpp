#include "vrx_api/mechanical/pmi_data.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/elements.h"

namespace vrx
{

void ExcPMIData::readObject(const JsonValue& value)
{
    readElements(m_annotationSets, value, "ExcPMIData");
}

void ExcPMIData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeElements(m_annotationSets, value, allocator);
}

void ExcPMIData::addAnnotationSet(const std::shared_ptr<ExcPMIAnnotationSet>& set)
{
    add(m_annotationSets, set, "ExcPMIData: attempt to add null PMI Annotation Set object.");
}

} // namespace vrx
