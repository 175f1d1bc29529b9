#include "vrx_api/mechanical/pmi_datum.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcPMIDatum::describe(Self& self, Fields& fields)
{
    describeBaseForWriting<ExcPMIAnnotation>(self, fields);
    fields.always(WIDE("label"), identity(EIdSpace::Datum, self.m_label));
    fields.always(WIDE("target_ids"), valid(self.m_targetIds));
}
template struct Described<ExcPMIDatum>;

void ExcPMIDatum::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIDatum");
}

void ExcPMIDatum::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

EPMIAnnotationType ExcPMIDatum::type() const
{
    return EPMIAnnotationType::Datum;
}

} // namespace vrx
