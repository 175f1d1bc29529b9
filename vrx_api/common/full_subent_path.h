#pragma once

#include "vrx_api/common/subent_id.h"
#include "vrx_api/json/json_object.h"

#include <cstdint>
#include <vector>

namespace vrx
{

/// The whole address of a body or of a part of it within a product structure: the identifiers of the block references
/// on the way down, the body's id, and the part of the body.
class VRX_API ExcFullSubentPath : public IJsonObject
{
public:
    ExcFullSubentPath() = default;
    /// A path without block references: within one block.
    ExcFullSubentPath(std::uint64_t bodyId, const ExcSubentId& subentId)
        : m_bodyId(bodyId)
        , m_subentId(subentId)
    {
    }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    std::vector<wstring>& refs() { return m_refs; }
    const std::vector<wstring>& refs() const { return m_refs; }

    std::uint64_t bodyId() const { return m_bodyId; }
    void setBodyId(std::uint64_t id) { m_bodyId = id; }

    const ExcSubentId& subentId() const { return m_subentId; }
    void setSubentId(const ExcSubentId& id) { m_subentId = id; }

private:
    friend struct Described<ExcFullSubentPath>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<wstring> m_refs;
    std::uint64_t m_bodyId = 0;
    ExcSubentId m_subentId;
};

} // namespace vrx
