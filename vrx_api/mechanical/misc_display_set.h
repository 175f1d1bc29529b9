#pragma once

#include "vrx_api/common/entity.h"

#include <memory>
#include <vector>

namespace vrx
{

/// A display set of a model: a named choice of entities that are shown together. Copies share the entities.
class VRX_API ExcMiscDisplaySet : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    bool isActive() const { return m_active; }
    void setActive(bool active) { m_active = active; }

    const std::vector<std::shared_ptr<ExcEntity>>& entities() const { return m_entities; }

    /// A null pointer is logged and adds nothing.
    void addEntity(const std::shared_ptr<ExcEntity>& entity);

private:
    friend struct Described<ExcMiscDisplaySet>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    bool m_active = false;
    std::vector<std::shared_ptr<ExcEntity>> m_entities;
};

} // namespace vrx
