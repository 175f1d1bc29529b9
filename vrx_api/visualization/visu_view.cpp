#include "vrx_api/visualization/visu_view.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcVisuView::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("display_name"), self.m_displayName);
    fields.always(WIDE("id"), identity(EIdSpace::None, self.m_id));
    fields.always(WIDE("mechanical_id"), self.m_mechanicalId);
    fields.always(WIDE("hidden"), self.m_hidden);
    fields.always(WIDE("origin"), self.m_origin);
    fields.always(WIDE("direction_u"), self.m_directionU);
    fields.always(WIDE("direction_v"), self.m_directionV);
    fields.filled(WIDE("annotation_ids"), reference(EIdSpace::Annotation, valid(self.m_annotationIds)));
}
template struct Described<ExcVisuView>;

void ExcVisuView::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuView");
}

void ExcVisuView::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
