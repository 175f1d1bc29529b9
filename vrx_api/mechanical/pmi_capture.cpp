#include "vrx_api/mechanical/pmi_capture.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcPMICapture::describe(Self& self, Fields& fields)
{
    describeBase<ExcPMIObject>(self, fields);
    fields.always(WIDE("capture_hidden"), self.m_captureHidden);
    fields.always(WIDE("current"), self.m_current);
    fields.always(WIDE("hidden_text"), self.m_hiddenText);
    fields.filled(WIDE("camera"), self.m_camera);
    fields.filled(WIDE("clipping_plane"), self.m_clippingPlane);
    // No reference that a tool could follow: the ids of annotations do not cross.
    fields.filled(WIDE("annotation_ids"), valid(self.m_annotationIds));
    fields.filled(WIDE("constructed_geometry"), self.m_constructedGeometry);
    fields.filled(WIDE("bodies"), self.m_bodies);
    fields.always(WIDE("manage_hide_show"), self.m_manageHideShow);
}
template struct Described<ExcPMICapture>;

void ExcPMICapture::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMICapture");
}

void ExcPMICapture::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcPMICapture::addConstructedGeometry(const std::shared_ptr<ExcEntity>& geometry)
{
    add(m_constructedGeometry, geometry, "ExcPMICapture: attempt to add null Constructed Geometry Entity object.");
}

void ExcPMICapture::addBody(const std::shared_ptr<ExcEntity>& body)
{
    add(m_bodies, body, "ExcPMICapture: attempt to add null Body object.");
}

} // namespace vrx
