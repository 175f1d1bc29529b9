#include "vrx_api/visualization/visu_attributes.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcVisuAttributes::describe(Self& self, Fields& fields)
{
    fields.filled(WIDE("font"), self.m_font);
    fields.filled(WIDE("color"), self.m_color);
    fields.always(WIDE("hidden"), self.m_hidden);
    fields.filled(WIDE("materials"), self.m_materials);
    fields.filled(WIDE("line_attribute"), self.m_lineAttribute);
}
template struct Described<ExcVisuAttributes>;

void ExcVisuAttributes::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuAttributes");
}

void ExcVisuAttributes::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

static constexpr const char* kNullMaterial = "ExcVisuAttributes: attempt to add null Material object.";

void ExcVisuAttributes::addMaterial(const std::shared_ptr<ExcVisuMaterial>& material)
{
    add(m_materials, material, kNullMaterial);
}

void ExcVisuAttributes::addMaterials(const std::vector<std::shared_ptr<ExcVisuMaterial>>& materials)
{
    addAll(m_materials, materials, kNullMaterial);
}

void ExcVisuAttributes::setMaterials(const std::vector<std::shared_ptr<ExcVisuMaterial>>& materials)
{
    setAll(m_materials, materials, kNullMaterial);
}

} // namespace vrx
