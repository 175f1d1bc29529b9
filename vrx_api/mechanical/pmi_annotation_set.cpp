#include "vrx_api/mechanical/pmi_annotation_set.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcPMIAnnotationSet::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("block_id"), reference(EIdSpace::Block, self.m_blockId));
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("hidden"), self.m_hidden);
    fields.always(WIDE("standart"), self.m_standart);
    // The reader takes "annotation_views"; the writer's key is "views".
    fields.readOnly(WIDE("annotation_views"), self.m_views);
    fields.writeOnly(!self.m_views.empty(), WIDE("views"), self.m_views);
    fields.filled(WIDE("captures"), self.m_captures);
    fields.filled(WIDE("constructed_geometry"), self.m_constructedGeometry);
}
template struct Described<ExcPMIAnnotationSet>;

void ExcPMIAnnotationSet::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIAnnotationSet");
}

void ExcPMIAnnotationSet::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcPMIAnnotationSet::addView(const std::shared_ptr<ExcPMIAnnotationView>& view)
{
    add(m_views, view, "ExcPMIAnnotationSet: attempt to add null View object.");
}

void ExcPMIAnnotationSet::addCapture(const std::shared_ptr<ExcPMICapture>& capture)
{
    add(m_captures, capture, "ExcPMIAnnotationSet: attempt to add null Capture object.");
}

void ExcPMIAnnotationSet::addConstructedGeometry(const std::shared_ptr<ExcEntity>& geometry)
{
    add(m_constructedGeometry, geometry,
        "ExcPMIAnnotationSet: attempt to add null Constructed Geometry Entity object.");
}

} // namespace vrx
