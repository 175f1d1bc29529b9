#pragma once

#include "vrx_api/common/vector.h"
#include "vrx_api/manufacturing/mfg_pattern.h"

namespace vrx
{

/// A pattern whose occurrences stand at listed positions. Copies share the base instance.
class VRX_API ExcMfgPatternUserDefined : public ExcMfgPattern
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EType type() const override;

    const ExcVector3d& anchorPoint() const { return m_anchorPoint; }
    void setAnchorPoint(const ExcVector3d& point) { m_anchorPoint = point; }

    /// May be null.
    const std::shared_ptr<Instance>& baseInstance() const { return m_baseInstance; }
    void setBaseInstance(const std::shared_ptr<Instance>& instance) { m_baseInstance = instance; }

    const std::vector<ExcVector3d>& instancePositions() const { return m_instancePositions; }
    void addInstancePosition(const ExcVector3d& position) { m_instancePositions.push_back(position); }

    /// The positions of the occurrences that are switched off.
    const std::vector<ExcVector3d>& deactivatedPositions() const { return m_deactivatedPositions; }
    void addDeactivatedPosition(const ExcVector3d& position) { m_deactivatedPositions.push_back(position); }

private:
    friend struct Described<ExcMfgPatternUserDefined>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ExcVector3d m_anchorPoint;
    std::shared_ptr<Instance> m_baseInstance;
    std::vector<ExcVector3d> m_instancePositions;
    std::vector<ExcVector3d> m_deactivatedPositions;
};

} // namespace vrx
