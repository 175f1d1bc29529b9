#pragma once

#include "vrx_api/common/entity.h"

#include <memory>
#include <utility>
#include <vector>

namespace vrx
{

/// Which entity of a block was made of which entity of the original CAD file. Its JSON is an array of objects, in which
/// the original is read but never written: it does not cross. Copies share the entities.
class VRX_API ExcMappingData : public IJsonObject
{
public:
    /// Appends to the pairs that are here; an element that is no object is logged and passed over. What an element does
    /// not have is null in its pair.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Pairs of the imported entity and the original one.
    const std::vector<std::pair<std::shared_ptr<ExcEntity>, std::shared_ptr<ExcEntity>>>& mapping() const
    {
        return m_mapping;
    }

    /// A pair with a null pointer is logged and not added.
    void add(const std::shared_ptr<ExcEntity>& imported, const std::shared_ptr<ExcEntity>& original);

private:
    friend struct Described<ExcMappingData>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<std::pair<std::shared_ptr<ExcEntity>, std::shared_ptr<ExcEntity>>> m_mapping;
};

} // namespace vrx
