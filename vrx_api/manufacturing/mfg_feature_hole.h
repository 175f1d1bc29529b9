#pragma once

#include "vrx_api/manufacturing/mfg_counter_hole.h"
#include "vrx_api/manufacturing/mfg_feature.h"
#include "vrx_api/manufacturing/mfg_hole.h"

#include <memory>
#include <vector>

namespace vrx
{

/// A hole of a part: the entities that limit and define it. The id, the linked elements, the name and the pattern of
/// the feature do not cross; a hole has its name in its data. Copies share the entities.
class VRX_API ExcMfgFeatureHole : public ExcMfgFeature
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const std::vector<std::shared_ptr<ExcEntity>>& limitingGeometry() const { return m_limitingGeometry; }
    const std::vector<std::shared_ptr<ExcEntity>>& definingGeometry() const { return m_definingGeometry; }

    /// A null pointer is logged and adds nothing.
    void addLimitingGeometry(const std::shared_ptr<ExcEntity>& entity);
    void addDefiningGeometry(const std::shared_ptr<ExcEntity>& entity);

protected:
    ExcMfgFeatureHole() = default;

private:
    friend struct Described<ExcMfgFeatureHole>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<std::shared_ptr<ExcEntity>> m_limitingGeometry;
    std::vector<std::shared_ptr<ExcEntity>> m_definingGeometry;
};

extern template struct Described<ExcMfgFeatureHole>;

/// A hole with the data of its kind; the library holds the five for `ExcMfgSimpleHole`, `ExcMfgTaperHole`,
/// `ExcMfgCounterBoreHole`, `ExcMfgCounterSinkHole` and `ExcMfgCounterDrillHole`. The JSON does not name the kind: the
/// list of `ExcMfgData` in which a hole stands tells it. Copies share the data.
template <class T>
class VRX_API ExcMfgFeatureHoleType : public ExcMfgFeatureHole
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// May be null.
    const std::shared_ptr<T>& holeData() const { return m_holeData; }
    void setHoleData(const std::shared_ptr<T>& data) { m_holeData = data; }

private:
    friend struct Described<ExcMfgFeatureHoleType>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::shared_ptr<T> m_holeData;
};

} // namespace vrx
