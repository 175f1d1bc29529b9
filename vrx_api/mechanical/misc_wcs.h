#pragma once

#include "vrx_api/common/color.h"
#include "vrx_api/common/vector.h"

#include <cstdint>

namespace vrx
{

/// A working coordinate system of a model: a frame in space, and how it is shown. Nothing checks that the axes have the
/// length 1 and right angles between them. They are set and written; there is no getter.
class VRX_API ExcMiscWCS : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const ExcVector3d& origin() const { return m_origin; }
    void setOrigin(const ExcVector3d& origin) { m_origin = origin; }

    void setX(const ExcVector3d& axis) { m_x = axis; }
    void setY(const ExcVector3d& axis) { m_y = axis; }
    void setZ(const ExcVector3d& axis) { m_z = axis; }

    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }

    bool isActive() const { return m_active; }
    void setActive(bool active) { m_active = active; }

    const wstring& id() const { return m_id; }
    void setId(const wstring& id) { m_id = id; }

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    bool isShown() const { return m_shown; }
    void setShown(bool shown) { m_shown = shown; }

    /// The id of the `ExcMiscLayer` on which it lies, in the same `ExcMechanicalMiscData`; nothing checks it.
    std::int32_t layerId() const { return m_layerId; }
    void setLayerId(std::int32_t id) { m_layerId = id; }

private:
    friend struct Described<ExcMiscWCS>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ExcVector3d m_origin;
    ExcVector3d m_x;
    ExcVector3d m_y;
    ExcVector3d m_z;
    ExcColor m_color;
    bool m_active = false;
    wstring m_id;
    wstring m_name;
    bool m_shown = false;
    std::int32_t m_layerId = 0;
};

} // namespace vrx
