#pragma once

#include "vrx_api/common/entity.h"

#include <memory>
#include <vector>

namespace vrx
{

/// What all manufacturing objects have in common: an id, and the entities that they are linked to. Copies share the
/// entities.
class VRX_API ExcMfgObject : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& id() const { return m_id; }
    void setId(const wstring& id) { m_id = id; }

    const std::vector<std::shared_ptr<ExcEntity>>& linkedElements() const { return m_linkedElements; }

    /// A null pointer is logged and adds nothing.
    void addLinkedElement(const std::shared_ptr<ExcEntity>& element);

protected:
    ExcMfgObject() = default;

private:
    friend struct Described<ExcMfgObject>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_id;
    std::vector<std::shared_ptr<ExcEntity>> m_linkedElements;
};

extern template struct Described<ExcMfgObject>;

} // namespace vrx
