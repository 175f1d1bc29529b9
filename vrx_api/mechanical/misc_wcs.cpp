#include "vrx_api/mechanical/misc_wcs.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcMiscWCS::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("origin"), self.m_origin);
    fields.always(WIDE("x"), self.m_x);
    fields.always(WIDE("y"), self.m_y);
    fields.always(WIDE("z"), self.m_z);
    fields.always(WIDE("color"), self.m_color);
    fields.always(WIDE("active"), self.m_active);
    fields.always(WIDE("id"), identity(EIdSpace::None, self.m_id));
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("shown"), self.m_shown);
    fields.always(WIDE("layer_id"), reference(EIdSpace::Layer, self.m_layerId));
}
template struct Described<ExcMiscWCS>;

void ExcMiscWCS::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMiscWCS");
}

void ExcMiscWCS::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
