#pragma once

#include "vrx_api/json/json_object.h"

#include <cstdint>

namespace vrx
{

/// The numbers that every thread has.
class VRX_API ExcMfgThreading : public IJsonObject
{
public:
    enum class EOrientation : std::int32_t
    {
        Unknown = 0,
        RightHanded = 1,
        LeftHanded = 2,
    };

    enum class EDesignationSystemType : std::int32_t
    {
        Unknown = 0,
        Metric = 1,
        American = 2,
        British = 3,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    double diameter() const { return m_diameter; }
    void setDiameter(double diameter) { m_diameter = diameter; }

    double depth() const { return m_depth; }
    void setDepth(double depth) { m_depth = depth; }

    /// The distance from one turn of the thread to the next.
    double pitch() const { return m_pitch; }
    void setPitch(double pitch) { m_pitch = pitch; }

    EOrientation orientation() const { return m_orientation; }
    void setOrientation(EOrientation orientation) { m_orientation = orientation; }

    /// The name of the thread in its system, such as "M8".
    const wstring& designation() const { return m_designation; }
    void setDesignation(const wstring& designation) { m_designation = designation; }

    EDesignationSystemType designationSystemType() const { return m_designationSystemType; }
    void setDesignationSystemType(EDesignationSystemType type) { m_designationSystemType = type; }

private:
    friend struct Described<ExcMfgThreading>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    double m_diameter = 0.0;
    double m_depth = 0.0;
    double m_pitch = 0.0;
    EOrientation m_orientation = EOrientation::Unknown;
    wstring m_designation;
    EDesignationSystemType m_designationSystemType = EDesignationSystemType::Unknown;
};

extern template struct Described<ExcMfgThreading>;

/// The thread of an `ExcMfgFeatureThread`, with the hole or the shaft that it is cut into.
class VRX_API ExcMfgThread : public ExcMfgThreading
{
public:
    /// How the bottom of the thread is given.
    enum class EBottomType : std::int32_t
    {
        Unknown = 0,
        Dimension = 1,
        SupportDepth = 2,
        SupportUpToPlane = 3,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The size of the hole or the shaft.
    double supportDiameter() const { return m_supportDiameter; }
    void setSupportDiameter(double diameter) { m_supportDiameter = diameter; }
    double supportDepth() const { return m_supportDepth; }
    void setSupportDepth(double depth) { m_supportDepth = depth; }

    EBottomType bottomType() const { return m_bottomType; }
    void setBottomType(EBottomType type) { m_bottomType = type; }

private:
    friend struct Described<ExcMfgThread>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    double m_supportDiameter = 0.0;
    double m_supportDepth = 0.0;
    EBottomType m_bottomType = EBottomType::Unknown;
};

/// The thread of an `ExcMfgHole`, with its standard and its tolerances.
class VRX_API ExcMfgHoleThread : public ExcMfgThreading
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The standard to which the thread is cut.
    const wstring& standart() const { return m_standart; }
    void setStandart(const wstring& standart) { m_standart = standart; }

    double maximalTolerance() const { return m_maximalTolerance; }
    void setMaximalTolerance(double tolerance) { m_maximalTolerance = tolerance; }

    double minimalTolerance() const { return m_minimalTolerance; }
    void setMinimalTolerance(double tolerance) { m_minimalTolerance = tolerance; }

private:
    friend struct Described<ExcMfgHoleThread>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_standart;
    double m_maximalTolerance = 0.0;
    double m_minimalTolerance = 0.0;
};

} // namespace vrx
