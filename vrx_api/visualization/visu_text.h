#pragma once

#include "vrx_api/common/color.h"
#include "vrx_api/common/vector.h"
#include "vrx_api/visualization/visu_font.h"

namespace vrx
{

/// One line of displayed text, placed in the scene.
class VRX_API ExcVisuText : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& text() const { return m_text; }
    void setText(const wstring& text) { m_text = text; }

    const ExcVector3d& anchorPoint() const { return m_anchorPoint; }
    void setAnchorPoint(const ExcVector3d& point) { m_anchorPoint = point; }

    const ExcVector3d& direction() const { return m_direction; }
    void setDirection(const ExcVector3d& direction) { m_direction = direction; }

    const ExcVector3d& normal() const { return m_normal; }
    void setNormal(const ExcVector3d& normal) { m_normal = normal; }

    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }

    const ExcVisuFont& font() const { return m_font; }
    void setFont(const ExcVisuFont& font) { m_font = font; }

private:
    friend struct Described<ExcVisuText>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_text;
    ExcVector3d m_anchorPoint;
    ExcVector3d m_direction;
    ExcVector3d m_normal;
    ExcColor m_color;
    ExcVisuFont m_font;
};

} // namespace vrx
