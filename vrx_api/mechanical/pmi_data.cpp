#include "vrx_api/mechanical/pmi_data.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcPMIData::describe(Self& self, Fields& fields)
{
    fields.whole(self.m_annotationSets);
}
template struct Described<ExcPMIData>;

void ExcPMIData::readObject(const JsonValue& value)
{
    readArray(*this, value, "ExcPMIData");
}

void ExcPMIData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeWhole(*this, value, allocator);
}

void ExcPMIData::addAnnotationSet(const std::shared_ptr<ExcPMIAnnotationSet>& set)
{
    add(m_annotationSets, set, "ExcPMIData: attempt to add null PMI Annotation Set object.");
}

} // namespace vrx
