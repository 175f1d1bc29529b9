#include "vrx_api/mechanical/misc_layer_filter.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

static constexpr EnumName<ExcMiscLayerFilter::EType> kFilterTypes[] = {
    {ExcMiscLayerFilter::EType::All, WIDE("all")},
    {ExcMiscLayerFilter::EType::Laycur, WIDE("laycur")},
    {ExcMiscLayerFilter::EType::Other, WIDE("other")},
};
static constexpr const auto& enumTable(ExcMiscLayerFilter::EType)
{
    return kFilterTypes;
}

template <class Self, class Fields>
void ExcMiscLayerFilter::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("type"), self.m_type);
    fields.always(WIDE("current"), self.m_current);
    fields.filled(WIDE("layer_id"), reference(EIdSpace::Layer, valid(self.m_layerIds)));
}
template struct Described<ExcMiscLayerFilter>;

void ExcMiscLayerFilter::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMiscLayerFilter");
}

void ExcMiscLayerFilter::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
