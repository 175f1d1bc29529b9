#pragma once

#include "vrx_api/manufacturing/mfg_feature_hole.h"
#include "vrx_api/manufacturing/mfg_feature_thread.h"
#include "vrx_api/manufacturing/mfg_feature_unclassified.h"

#include <memory>
#include <vector>

namespace vrx
{

/// All machined features of a block, as its `ExcBlockMechanicalData` holds them: one list per kind. Copies share the
/// features.
class VRX_API ExcMfgData : public IJsonObject
{
public:
    /// A list of features of one kind.
    template <class T>
    using Features = std::vector<std::shared_ptr<T>>;
    /// A hole feature with the data of one kind of hole.
    template <class T>
    using Hole = ExcMfgFeatureHoleType<T>;

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Without this flag no list is written and none is read. Adding a feature does not set it.
    bool hasData() const { return m_hasData; }
    void setHasData(bool hasData) { m_hasData = hasData; }

    const Features<Hole<ExcMfgSimpleHole>>& simpleHoles() const { return m_simpleHoles; }
    const Features<Hole<ExcMfgTaperHole>>& taperHoles() const { return m_taperHoles; }
    const Features<Hole<ExcMfgCounterBoreHole>>& counterBoreHoles() const { return m_counterBoreHoles; }
    const Features<Hole<ExcMfgCounterSinkHole>>& counterSinkHoles() const { return m_counterSinkHoles; }
    const Features<Hole<ExcMfgCounterDrillHole>>& counterDrillHoles() const { return m_counterDrillHoles; }
    const Features<ExcMfgFeatureInternalThread>& internalThreads() const { return m_internalThreads; }
    const Features<ExcMfgFeatureExternalThread>& externalThreads() const { return m_externalThreads; }
    const Features<ExcMfgFeatureUnclassified>& unclassifiedFeatures() const { return m_unclassifiedFeatures; }

    /// A null pointer is logged and adds nothing.
    void addSimpleHole(const std::shared_ptr<Hole<ExcMfgSimpleHole>>& hole);
    void addTaperHole(const std::shared_ptr<Hole<ExcMfgTaperHole>>& hole);
    void addCounterBoreHole(const std::shared_ptr<Hole<ExcMfgCounterBoreHole>>& hole);
    void addCounterSinkHole(const std::shared_ptr<Hole<ExcMfgCounterSinkHole>>& hole);
    void addCounterDrillHole(const std::shared_ptr<Hole<ExcMfgCounterDrillHole>>& hole);
    void addInternalThread(const std::shared_ptr<ExcMfgFeatureInternalThread>& thread);
    void addExternalThread(const std::shared_ptr<ExcMfgFeatureExternalThread>& thread);
    void addUnclassifiedFeature(const std::shared_ptr<ExcMfgFeatureUnclassified>& feature);

private:
    friend struct Described<ExcMfgData>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    bool m_hasData = false;
    Features<Hole<ExcMfgSimpleHole>> m_simpleHoles;
    Features<Hole<ExcMfgTaperHole>> m_taperHoles;
    Features<Hole<ExcMfgCounterBoreHole>> m_counterBoreHoles;
    Features<Hole<ExcMfgCounterSinkHole>> m_counterSinkHoles;
    Features<Hole<ExcMfgCounterDrillHole>> m_counterDrillHoles;
    Features<ExcMfgFeatureInternalThread> m_internalThreads;
    Features<ExcMfgFeatureExternalThread> m_externalThreads;
    Features<ExcMfgFeatureUnclassified> m_unclassifiedFeatures;
};

} // namespace vrx
