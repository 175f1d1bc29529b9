#include "vrx_api/visualization/visu_text.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcVisuText::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("text"), self.m_text);
    fields.always(WIDE("anchor_point"), self.m_anchorPoint);
    fields.always(WIDE("direction"), self.m_direction);
    fields.always(WIDE("normal"), self.m_normal);
    fields.always(WIDE("color"), self.m_color);
    fields.always(WIDE("font"), self.m_font);
}
template struct Described<ExcVisuText>;

void ExcVisuText::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuText");
}

void ExcVisuText::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
