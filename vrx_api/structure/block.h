#pragma once

#include "vrx_api/common/misc_data.h"
#include "vrx_api/common/units.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/structure/block_reference.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vrx
{

/// The definition of a part or of a sub-assembly, which holds the references to its children.
/// Geometry, mechanical data and visualization of a block point at it by its id.
class VRX_API ExcBlock : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    std::uint64_t id() const { return m_id; }
    void setId(std::uint64_t id) { m_id = id; }

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    const wstring& storageName() const { return m_storageName; }
    void setStorageName(const wstring& name) { m_storageName = name; }

    EWorldOrientation worldOrientation() const { return m_worldOrientation; }
    void setWorldOrientation(EWorldOrientation orientation) { m_worldOrientation = orientation; }

    const ExcMiscData& miscData() const { return m_miscData; }
    ExcMiscData& miscData() { return m_miscData; }

    const std::vector<std::shared_ptr<ExcBlockReference>>& blockReferences() const { return m_blockReferences; }

    /// Appends; a null pointer is logged and adds nothing.
    void addBlockReference(const std::shared_ptr<ExcBlockReference>& reference);

    bool isPart() const { return m_part; }
    void setPart(bool part) { m_part = part; }

private:
    friend struct Described<ExcBlock>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::uint64_t m_id = 0;
    wstring m_name;
    wstring m_storageName;
    EWorldOrientation m_worldOrientation = EWorldOrientation::Unknown;
    ExcMiscData m_miscData;
    std::vector<std::shared_ptr<ExcBlockReference>> m_blockReferences;
    bool m_part = false;
};

} // namespace vrx
