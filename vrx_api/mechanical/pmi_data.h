#pragma once

#include "vrx_api/mechanical/pmi_annotation_set.h"

#include <memory>
#include <vector>

namespace vrx
{

/// The product manufacturing information of a block or of the model as a whole. Its JSON is an array of annotation
/// sets. Copies share the sets.
class VRX_API ExcPMIData : public IJsonObject
{
public:
    /// Appends to the sets that are here.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The annotation sets in their order.
    const std::vector<std::shared_ptr<ExcPMIAnnotationSet>>& annotationSets() const { return m_annotationSets; }

    /// Appends; a null pointer is logged and adds nothing.
    void addAnnotationSet(const std::shared_ptr<ExcPMIAnnotationSet>& set);

private:
    friend struct Described<ExcPMIData>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<std::shared_ptr<ExcPMIAnnotationSet>> m_annotationSets;
};

} // namespace vrx
