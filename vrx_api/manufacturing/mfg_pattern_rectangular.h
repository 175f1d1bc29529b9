#pragma once

#include "vrx_api/common/vector.h"
#include "vrx_api/manufacturing/mfg_pattern.h"

namespace vrx
{

/// A pattern whose occurrences stand in a grid, at even distances along two directions. Copies share the base instance.
class VRX_API ExcMfgPatternRectangular : public ExcMfgPattern
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EType type() const override;

    const ExcVector3d& anchorPoint() const { return m_anchorPoint; }
    void setAnchorPoint(const ExcVector3d& point) { m_anchorPoint = point; }

    const ExcVector3d& alignmentPrimaryDirection() const { return m_alignmentPrimaryDirection; }
    void setAlignmentPrimaryDirection(const ExcVector3d& direction) { m_alignmentPrimaryDirection = direction; }

    const ExcVector3d& alignmentSecondaryDirection() const { return m_alignmentSecondaryDirection; }
    void setAlignmentSecondaryDirection(const ExcVector3d& direction) { m_alignmentSecondaryDirection = direction; }

    /// How many occurrences there are along each direction.
    std::int32_t primaryInstanceCount() const { return m_primaryInstanceCount; }
    void setPrimaryInstanceCount(std::int32_t count) { m_primaryInstanceCount = count; }
    std::int32_t secondaryInstanceCount() const { return m_secondaryInstanceCount; }
    void setSecondaryInstanceCount(std::int32_t count) { m_secondaryInstanceCount = count; }

    /// The distance from one occurrence to the next along each direction.
    double primarySpacing() const { return m_primarySpacing; }
    void setPrimarySpacing(double spacing) { m_primarySpacing = spacing; }
    double secondarySpacing() const { return m_secondarySpacing; }
    void setSecondarySpacing(double spacing) { m_secondarySpacing = spacing; }

    /// May be null.
    const std::shared_ptr<Instance>& baseInstance() const { return m_baseInstance; }
    void setBaseInstance(const std::shared_ptr<Instance>& instance) { m_baseInstance = instance; }

    bool isSimplified() const { return m_simplified; }
    void setSimplified(bool simplified) { m_simplified = simplified; }

    /// The occurrences that are shown.
    const std::vector<IndexPair>& visibleInstances() const { return m_visibleInstances; }
    void addVisibleInstance(const IndexPair& instance) { m_visibleInstances.push_back(instance); }

    /// The occurrences that are switched off.
    const std::vector<IndexPair>& deactivatedInstances() const { return m_deactivatedInstances; }
    void addDeactivatedInstance(const IndexPair& instance) { m_deactivatedInstances.push_back(instance); }

private:
    friend struct Described<ExcMfgPatternRectangular>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ExcVector3d m_anchorPoint;
    ExcVector3d m_alignmentPrimaryDirection;
    ExcVector3d m_alignmentSecondaryDirection;
    std::int32_t m_primaryInstanceCount = 0;
    std::int32_t m_secondaryInstanceCount = 0;
    double m_primarySpacing = 0.0;
    double m_secondarySpacing = 0.0;
    std::shared_ptr<Instance> m_baseInstance;
    bool m_simplified = false;
    std::vector<IndexPair> m_visibleInstances;
    std::vector<IndexPair> m_deactivatedInstances;
};

} // namespace vrx
