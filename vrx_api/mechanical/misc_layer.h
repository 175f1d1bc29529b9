#pragma once

#include "vrx_api/common/color.h"
#include "vrx_api/common/entity.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vrx
{

/// A layer of a model: a group of entities that are shown, hidden and coloured together. Copies share the entities.
class VRX_API ExcMiscLayer : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// By this number coordinate systems and filters point at the layer.
    std::int32_t id() const { return m_id; }
    void setId(std::int32_t id) { m_id = id; }

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }

    /// The current layer is the one that is worked on.
    bool isCurrent() const { return m_current; }
    void setCurrent(bool current) { m_current = current; }

    const std::vector<std::shared_ptr<ExcEntity>>& entities() const { return m_entities; }

    /// A null pointer is logged and adds nothing.
    void addEntity(const std::shared_ptr<ExcEntity>& entity);

private:
    friend struct Described<ExcMiscLayer>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::int32_t m_id = 0;
    wstring m_name;
    ExcColor m_color;
    bool m_current = false;
    std::vector<std::shared_ptr<ExcEntity>> m_entities;
};

} // namespace vrx
