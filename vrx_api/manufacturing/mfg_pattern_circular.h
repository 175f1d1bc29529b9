#pragma once

#include "vrx_api/common/vector.h"
#include "vrx_api/manufacturing/mfg_pattern.h"

namespace vrx
{

/// A pattern whose occurrences stand around an axis, on one circle or on several. Copies share the base instance.
class VRX_API ExcMfgPatternCircular : public ExcMfgPattern
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EType type() const override;

    const ExcVector3d& anchorPoint() const { return m_anchorPoint; }
    void setAnchorPoint(const ExcVector3d& point) { m_anchorPoint = point; }

    const ExcVector3d& centerOfRotation() const { return m_centerOfRotation; }
    void setCenterOfRotation(const ExcVector3d& center) { m_centerOfRotation = center; }

    const ExcVector3d& axisOfRotation() const { return m_axisOfRotation; }
    void setAxisOfRotation(const ExcVector3d& axis) { m_axisOfRotation = axis; }

    /// How many occurrences there are around the axis, and outward from it.
    std::int32_t axialInstanceCount() const { return m_axialInstanceCount; }
    void setAxialInstanceCount(std::int32_t count) { m_axialInstanceCount = count; }
    std::int32_t radialInstanceCount() const { return m_radialInstanceCount; }
    void setRadialInstanceCount(std::int32_t count) { m_radialInstanceCount = count; }

    /// From one occurrence to the next: the angle around the axis, in degrees, and the distance outward from it.
    double axialDistanceDegrees() const { return m_axialDistanceDegrees; }
    void setAxialDistanceDegrees(double degrees) { m_axialDistanceDegrees = degrees; }
    double radialDistance() const { return m_radialDistance; }
    void setRadialDistance(double distance) { m_radialDistance = distance; }

    bool isFixedRotationOrientation() const { return m_fixedRotationOrientation; }
    void setFixedRotationOrientation(bool fixed) { m_fixedRotationOrientation = fixed; }

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
    friend struct Described<ExcMfgPatternCircular>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ExcVector3d m_anchorPoint;
    ExcVector3d m_centerOfRotation;
    ExcVector3d m_axisOfRotation;
    std::int32_t m_axialInstanceCount = 0;
    std::int32_t m_radialInstanceCount = 0;
    double m_axialDistanceDegrees = 0.0;
    double m_radialDistance = 0.0;
    bool m_fixedRotationOrientation = false;
    std::shared_ptr<Instance> m_baseInstance;
    bool m_simplified = false;
    std::vector<IndexPair> m_visibleInstances;
    std::vector<IndexPair> m_deactivatedInstances;
};

} // namespace vrx
