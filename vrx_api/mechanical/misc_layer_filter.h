#pragma once

#include "vrx_api/json/json_object.h"

#include <cstdint>
#include <vector>

namespace vrx
{

/// A layer filter of a model: a named choice of layers. The current filter is the one in use.
class VRX_API ExcMiscLayerFilter : public IJsonObject
{
public:
    enum class EType : std::int32_t
    {
        All = 0,
        Laycur = 1, // the current layer
        Other = 2,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    EType type() const { return m_type; }
    void setType(EType type) { m_type = type; }

    bool isCurrent() const { return m_current; }
    void setCurrent(bool current) { m_current = current; }

    /// The ids of `ExcMiscLayer` objects in the same `ExcMechanicalMiscData`; nothing checks them. Duplicates stay.
    const std::vector<std::int32_t>& layerIds() const { return m_layerIds; }
    void addLayerId(std::int32_t id) { m_layerIds.push_back(id); }

private:
    friend struct Described<ExcMiscLayerFilter>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    EType m_type = EType::All;
    bool m_current = false;
    std::vector<std::int32_t> m_layerIds;
};

} // namespace vrx
