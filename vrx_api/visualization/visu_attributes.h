#pragma once

#include "vrx_api/common/color.h"
#include "vrx_api/visualization/visu_font.h"
#include "vrx_api/visualization/visu_line_attribute.h"
#include "vrx_api/visualization/visu_material.h"

#include <memory>
#include <vector>

namespace vrx
{

/// The look that a scene node gives its content. A null pointer says nothing of that side of it. Copies share what the
/// pointers hold.
class VRX_API ExcVisuAttributes : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const std::shared_ptr<ExcVisuFont>& font() const { return m_font; }
    void setFont(const std::shared_ptr<ExcVisuFont>& font) { m_font = font; }

    const std::shared_ptr<ExcColor>& color() const { return m_color; }
    void setColor(const std::shared_ptr<ExcColor>& color) { m_color = color; }

    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }

    const std::vector<std::shared_ptr<ExcVisuMaterial>>& materials() const { return m_materials; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addMaterial(const std::shared_ptr<ExcVisuMaterial>& material);
    void addMaterials(const std::vector<std::shared_ptr<ExcVisuMaterial>>& materials);
    void setMaterials(const std::vector<std::shared_ptr<ExcVisuMaterial>>& materials);

    const std::shared_ptr<ExcVisuLineAttribute>& lineAttribute() const { return m_lineAttribute; }
    void setLineAttribute(const std::shared_ptr<ExcVisuLineAttribute>& attribute) { m_lineAttribute = attribute; }

private:
    friend struct Described<ExcVisuAttributes>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::shared_ptr<ExcVisuFont> m_font;
    std::shared_ptr<ExcColor> m_color;
    bool m_hidden = false;
    std::vector<std::shared_ptr<ExcVisuMaterial>> m_materials;
    std::shared_ptr<ExcVisuLineAttribute> m_lineAttribute;
};

} // namespace vrx
