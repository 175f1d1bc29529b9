#pragma once

#include "vrx_api/common/vector.h"
#include "vrx_api/manufacturing/mfg_threading.h"

#include <cstdint>
#include <memory>

namespace vrx
{

/// The data of a machined hole, as an `ExcMfgFeatureHoleType` holds them: its place, its size and its bottom, and its
/// thread if it has one. The primary values are those of the drilled hole itself. Copies share the thread.
class VRX_API ExcMfgHole : public IJsonObject
{
public:
    /// How far the hole goes into the part.
    enum class EBottomLimitExtentType : std::int32_t
    {
        Unknown = 0,
        Blind = 1,
        UpToLast = 2,
        UpToPlane = 3,
        UpToSurface = 4,
        UpToNext = 5,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    double primaryDiameter() const { return m_primaryDiameter; }
    void setPrimaryDiameter(double diameter) { m_primaryDiameter = diameter; }

    double primaryDiameterMaxTol() const { return m_primaryDiameterMaxTol; }
    void setPrimaryDiameterMaxTol(double tolerance) { m_primaryDiameterMaxTol = tolerance; }

    double primaryDiameterMinTol() const { return m_primaryDiameterMinTol; }
    void setPrimaryDiameterMinTol(double tolerance) { m_primaryDiameterMinTol = tolerance; }

    double primaryDepth() const { return m_primaryDepth; }
    void setPrimaryDepth(double depth) { m_primaryDepth = depth; }

    /// The angle of the cone that the tip of the drill leaves at the bottom.
    double tipAngleDegrees() const { return m_tipAngleDegrees; }
    void setTipAngleDegrees(double degrees) { m_tipAngleDegrees = degrees; }

    EBottomLimitExtentType bottomLimitExtentType() const { return m_bottomLimitExtentType; }
    void setBottomLimitExtentType(EBottomLimitExtentType type) { m_bottomLimitExtentType = type; }

    const ExcVector3d& center() const { return m_center; }
    void setCenter(const ExcVector3d& center) { m_center = center; }

    const ExcVector3d& direction() const { return m_direction; }
    void setDirection(const ExcVector3d& direction) { m_direction = direction; }

    /// Null for a hole without a thread.
    const std::shared_ptr<ExcMfgHoleThread>& holeThread() const { return m_holeThread; }
    void setHoleThread(const std::shared_ptr<ExcMfgHoleThread>& thread) { m_holeThread = thread; }

protected:
    ExcMfgHole() = default;

private:
    friend struct Described<ExcMfgHole>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    double m_primaryDiameter = 0.0;
    double m_primaryDiameterMaxTol = 0.0;
    double m_primaryDiameterMinTol = 0.0;
    double m_primaryDepth = 0.0;
    double m_tipAngleDegrees = 0.0;
    EBottomLimitExtentType m_bottomLimitExtentType = EBottomLimitExtentType::Unknown;
    ExcVector3d m_center;
    ExcVector3d m_direction;
    std::shared_ptr<ExcMfgHoleThread> m_holeThread;
};

extern template struct Described<ExcMfgHole>;

/// A hole that is a cylinder: the primary values say it all.
class VRX_API ExcMfgSimpleHole : public ExcMfgHole
{
};

/// A hole that is a cone.
class VRX_API ExcMfgTaperHole : public ExcMfgHole
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The angle of the cone.
    double angle() const { return m_angle; }
    void setAngle(double angle) { m_angle = angle; }

private:
    friend struct Described<ExcMfgTaperHole>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    double m_angle = 0.0;
};

} // namespace vrx
