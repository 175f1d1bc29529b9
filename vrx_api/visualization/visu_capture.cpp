#include "vrx_api/visualization/visu_capture.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

// The ids of a capture keep their places: an element that is no string leaves an empty id, where a view passes it over.
template <class Texts>
struct EachId
{
    Texts& ids;
};
template <class Texts>
EachId(Texts&) -> EachId<Texts>;

template <class Texts>
static bool isEmpty(const EachId<Texts>& field)
{
    return field.ids.empty();
}

template <class Texts>
static void decode(const JsonValue& value, const EachId<Texts>& field)
{
    if (!value.IsArray())
    {
        return;
    }
    field.ids.reserve(field.ids.size() + value.Size());
    for (const JsonValue& element : value.GetArray())
    {
        decode(element, field.ids.emplace_back());
    }
}

template <class Texts>
static JsonValue encode(const EachId<Texts>& field, JsonAllocator& allocator)
{
    return encode(field.ids, allocator);
}

template <class Self, class Fields>
void ExcVisuCapture::describe(Self& self, Fields& fields)
{
    const EachId annotationIds{self.m_annotationIds};
    const EachId ftaConstructedGeometryIds{self.m_ftaConstructedGeometryIds};

    fields.always(WIDE("display_name"), self.m_displayName);
    fields.always(WIDE("id"), self.m_id);
    fields.always(WIDE("mechanical_id"), self.m_mechanicalId);
    fields.always(WIDE("hidden"), self.m_hidden);
    fields.always(WIDE("active"), self.m_active);
    fields.always(WIDE("hidden_text"), self.m_hiddenText);
    fields.always(WIDE("clipping_plane"), self.m_clippingPlane);
    fields.always(WIDE("camera"), self.m_camera);
    fields.filled(WIDE("annotation_ids"), annotationIds);
    fields.filled(WIDE("fta_constructed_geometry_ids"), ftaConstructedGeometryIds);
    fields.filled(WIDE("bodies"), self.m_linkedElements);
}

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
