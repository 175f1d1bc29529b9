#pragma once

#include "vrx_api/manufacturing/mfg_hole.h"

namespace vrx
{

/// A hole with a wider cylinder at its top, in which the head of a screw sits. The values below are those of the wider
/// part.
class VRX_API ExcMfgCounterBoreHole : public ExcMfgHole
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    double diameter() const { return m_diameter; }
    void setDiameter(double diameter) { m_diameter = diameter; }

    /// The tolerances of the diameter.
    double maximumTolerance() const { return m_maximumTolerance; }
    void setMaximumTolerance(double tolerance) { m_maximumTolerance = tolerance; }
    double minimumTolerance() const { return m_minimumTolerance; }
    void setMinimumTolerance(double tolerance) { m_minimumTolerance = tolerance; }

    double depth() const { return m_depth; }
    void setDepth(double depth) { m_depth = depth; }

private:
    friend struct Described<ExcMfgCounterBoreHole>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    double m_diameter = 0.0;
    double m_maximumTolerance = 0.0;
    double m_minimumTolerance = 0.0;
    double m_depth = 0.0;
};

/// A hole that opens in a cone at its top. The values below are those of the cone.
class VRX_API ExcMfgCounterSinkHole : public ExcMfgHole
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    double diameter() const { return m_diameter; }
    void setDiameter(double diameter) { m_diameter = diameter; }

    /// The tolerances of the diameter.
    double maximumTolerance() const { return m_maximumTolerance; }
    void setMaximumTolerance(double tolerance) { m_maximumTolerance = tolerance; }
    double minimumTolerance() const { return m_minimumTolerance; }
    void setMinimumTolerance(double tolerance) { m_minimumTolerance = tolerance; }

    double taperAngle() const { return m_taperAngle; }
    void setTaperAngle(double angle) { m_taperAngle = angle; }

private:
    friend struct Described<ExcMfgCounterSinkHole>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    double m_diameter = 0.0;
    double m_maximumTolerance = 0.0;
    double m_minimumTolerance = 0.0;
    double m_taperAngle = 0.0;
};

/// A hole with a wider cylinder at its top and a cone. The values below are those of the wider part and of its cone.
class VRX_API ExcMfgCounterDrillHole : public ExcMfgHole
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    double diameter() const { return m_diameter; }
    void setDiameter(double diameter) { m_diameter = diameter; }

    /// The tolerances of the diameter.
    double maximumTolerance() const { return m_maximumTolerance; }
    void setMaximumTolerance(double tolerance) { m_maximumTolerance = tolerance; }
    double minimumTolerance() const { return m_minimumTolerance; }
    void setMinimumTolerance(double tolerance) { m_minimumTolerance = tolerance; }

    double depth() const { return m_depth; }
    void setDepth(double depth) { m_depth = depth; }

    double sinkDiameter() const { return m_sinkDiameter; }
    void setSinkDiameter(double diameter) { m_sinkDiameter = diameter; }

    double taperAngle() const { return m_taperAngle; }
    void setTaperAngle(double angle) { m_taperAngle = angle; }

private:
    friend struct Described<ExcMfgCounterDrillHole>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    double m_diameter = 0.0;
    double m_maximumTolerance = 0.0;
    double m_minimumTolerance = 0.0;
    double m_depth = 0.0;
    double m_sinkDiameter = 0.0;
    double m_taperAngle = 0.0;
};

} // namespace vrx
