#pragma once

#include "vrx_api/mechanical/topological_entity_information.h"

#include <memory>
#include <vector>

namespace vrx
{

/// What is known of the bodies, faces, edges and vertices of a block. Its JSON is an array. Copies share the elements.
class VRX_API ExcEntityData : public IJsonObject
{
public:
    /// Appends to the elements that are here; one that is no object leaves a default element.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// One element for each entity of which something is known.
    const std::vector<std::shared_ptr<ExcTopologicalEntityInformation>>& data() const { return m_data; }

    /// A null pointer is logged and adds nothing.
    void addData(const std::shared_ptr<ExcTopologicalEntityInformation>& information);

private:
    friend struct Described<ExcEntityData>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<std::shared_ptr<ExcTopologicalEntityInformation>> m_data;
};

} // namespace vrx
