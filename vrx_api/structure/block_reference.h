#pragma once

#include "vrx_api/common/color.h"
#include "vrx_api/common/misc_data.h"
#include "vrx_api/common/transformation.h"
#include "vrx_api/json/json_object.h"

#include <cstdint>

namespace vrx
{

/// One placement of a block in a block above it, or at the top of the product. Several references may name one block,
/// which is how a part is instanced. The block is found by its id, through `ExcProductStructure::getBlockById`.
class VRX_API ExcBlockReference : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& guid() const { return m_guid; }
    void setGuid(const wstring& guid) { m_guid = guid; }

    const wstring& persistentId() const { return m_persistentId; }
    void setPersistentId(const wstring& id) { m_persistentId = id; }

    const wstring& persistentName() const { return m_persistentName; }
    void setPersistentName(const wstring& name) { m_persistentName = name; }

    std::uint64_t blockId() const { return m_blockId; }
    void setBlockId(std::uint64_t id) { m_blockId = id; }

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    const ExcTransformation& transformation() const { return m_transformation; }
    void setTransformation(const ExcTransformation& transformation) { m_transformation = transformation; }

    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }

    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }

    bool isSuppressed() const { return m_suppressed; }
    void setSuppressed(bool suppressed) { m_suppressed = suppressed; }

    const ExcMiscData& miscData() const { return m_miscData; }
    ExcMiscData& miscData() { return m_miscData; }

private:
    friend struct Described<ExcBlockReference>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_guid;
    wstring m_persistentId;
    wstring m_persistentName;
    std::uint64_t m_blockId = 0;
    wstring m_name;
    ExcTransformation m_transformation;
    ExcColor m_color;
    bool m_hidden = false;
    bool m_suppressed = false;
    ExcMiscData m_miscData;
};

} // namespace vrx
