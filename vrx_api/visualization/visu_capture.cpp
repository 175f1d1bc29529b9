#include "vrx_api/visualization/visu_capture.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

// The ids keep their places here: an element that is no string leaves an empty id, where a view passes it over.
template <class Self, class Fields>
void ExcVisuCapture::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("display_name"), self.m_displayName);
    fields.always(WIDE("id"), identity(EIdSpace::None, self.m_id));
    fields.always(WIDE("mechanical_id"), self.m_mechanicalId);
    fields.always(WIDE("hidden"), self.m_hidden);
    fields.always(WIDE("active"), self.m_active);
    fields.always(WIDE("hidden_text"), self.m_hiddenText);
    fields.always(WIDE("clipping_plane"), self.m_clippingPlane);
    fields.always(WIDE("camera"), self.m_camera);
    fields.filled(WIDE("annotation_ids"), reference(EIdSpace::Annotation, places(self.m_annotationIds)));
    fields.filled(WIDE("fta_constructed_geometry_ids"), places(self.m_ftaConstructedGeometryIds));
    fields.filled(WIDE("bodies"), self.m_linkedElements);
}
template struct Described<ExcVisuCapture>;

void ExcVisuCapture::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuCapture");
}

void ExcVisuCapture::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

static constexpr const char* kNullLinkedElement = "ExcVisuCapture: attempt to add null Linked Element object.";

void ExcVisuCapture::addLinkedElement(const std::shared_ptr<ExcEntity>& element)
{
    add(m_linkedElements, element, kNullLinkedElement);
}

void ExcVisuCapture::setLinkedElements(const std::vector<std::shared_ptr<ExcEntity>>& elements)
{
    setAll(m_linkedElements, elements, kNullLinkedElement);
}

} // namespace vrx
