#pragma once

#include "vrx_api/mechanical/pmi_annotation.h"

#include <array>
#include <cstdint>

namespace vrx
{

/// A datum target: a point, a line or an area of the part on which a datum rests. The datum names its targets; a target
/// does not name its datum.
class VRX_API ExcPMIDatumTarget : public ExcPMIAnnotation
{
public:
    enum class EType : std::int32_t
    {
        Unknown = 0,
        Point = 1,
        Line = 2,
        AreaCircular = 3,
        AreaRectangular = 4,
        AreaFace = 5,
        Feature = 6,
        UserDefined = 7,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EPMIAnnotationType type() const override;

    const wstring& label() const { return m_label; }
    void setLabel(const wstring& label) { m_label = label; }

    EType targetType() const { return m_targetType; }
    void setTargetType(EType type) { m_targetType = type; }

    /// True when the size in the upper half of the symbol is a diameter.
    bool hasDiameter() const { return m_hasDiameter; }
    void setHasDiameter(bool present) { m_hasDiameter = present; }

    /// The text in the upper half of the symbol, usually the size of the area.
    const wstring& upperText() const { return m_upperText; }
    void setUpperText(const wstring& text) { m_upperText = text; }

    /// The text in the lower half of the symbol, usually the datum's label and the number of the target.
    const wstring& lowerText() const { return m_lowerText; }
    void setLowerText(const wstring& text) { m_lowerText = text; }

    /// The two points that span the target zone, in the space of the model.
    const ExcVector3d& zonePoint1() const { return m_targetZone[0]; }
    void setZonePoint1(const ExcVector3d& point) { m_targetZone[0] = point; }
    const ExcVector3d& zonePoint2() const { return m_targetZone[1]; }
    void setZonePoint2(const ExcVector3d& point) { m_targetZone[1] = point; }

private:
    friend struct Described<ExcPMIDatumTarget>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_label;
    EType m_targetType = EType::Unknown;
    bool m_hasDiameter = false;
    wstring m_upperText;
    wstring m_lowerText;
    std::array<ExcVector3d, 2> m_targetZone;
};

} // namespace vrx
