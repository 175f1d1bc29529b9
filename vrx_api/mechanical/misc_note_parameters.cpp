#include "vrx_api/mechanical/misc_note_parameters.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcMiscNoteParameters::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("properties"), self.m_properties);
}
template struct Described<ExcMiscNoteParameters>;

void ExcMiscNoteParameters::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMiscNoteParameters");
}

void ExcMiscNoteParameters::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
