#pragma once

#include "vrx_api/mechanical/pmi_annotation.h"

#include <cstdint>

namespace vrx
{

/// A dimension: a measured or stated value with its unit, its tolerances, the texts around it, and the line with its
/// arrows.
class VRX_API ExcPMIDimension : public ExcPMIAnnotation
{
public:
    enum class EMainType : std::int32_t
    {
        Unknown = 0,
        Basic = 1,     // theoretically exact, in a frame on the drawing
        Reference = 2, // for information only, in parentheses on the drawing
        Tolerance = 3,
        CoordDim = 4,
        HoleCallout = 5,
    };

    /// What is measured.
    enum class ESubType : std::int32_t
    {
        Distance = 0,
        DistanceOffset = 1,
        Length = 2,
        LengthOrDistance = 3,
        LengthCurvilinear = 4,
        Angle = 5,
        Radius = 6,
        RadiusTangent = 7,
        RadiusCylinder = 8,
        RadiusEdge = 9,
        Diameter = 10,
        DiameterTangent = 11,
        DiameterCylinder = 12,
        DiameterEdge = 13,
        DiameterCone = 14,
        Chamfer = 15,
        Slope = 16,
        DimGdt = 17,
        DimDatumFeature = 18,
        DimDatumTarget = 19,
        DimBalloon = 20,
        NoDim = 21,
        AngleArc = 22,
        LengthCircular = 23,
        Fillet = 24,
        CoordDimension2d = 25,
        CoordDimension3d = 26,
    };

    /// The library gives no names to these numbers.
    enum class ECalloutFeatureAnnotationType : std::int32_t
    {
    };

    /// The unit of a dimension's value. It has nothing to do with `ELengthUnitType`, and is not converted.
    enum class EDimUnit : std::int32_t
    {
        None = 0,
        Mm = 1,
        Inch = 2,
        Meter = 3,
        Cm = 4,
        Km = 5,
        Foot = 6,
        FIF64 = 7, // feet and inches, with fractions of 1/64
        FIF16 = 8, // feet and inches, with fractions of 1/16
        FIDec = 9, // feet and inches, with decimal places
        Degree = 10,
        Minute = 11,
        Second = 12,
        Radian = 13,
        Grade = 14,
    };

    /// What is drawn at an end of the dimension line.
    enum class EArrowSymbol : std::int32_t
    {
        NotUsed = 0,
        Cross = 1,
        Plus = 2,
        Concentric = 3,
        Coincident = 4,
        FullCircle = 5,
        FullSquare = 6,
        FullStar = 7,
        Dot = 8,
        SmallDot = 9,
        Misc1 = 10,
        Misc2 = 11,
        FullCircle2 = 12,
        FullSquare2 = 13,
        OpenArrow = 14,
        UnfilledArrow = 15,
        BlankedArrow = 16,
        FilledArrow = 17,
        UnfilledCircle = 18,
        BlankedCircle = 19,
        FilledCircle = 20,
        CrossedCircle = 21,
        BlankedSquare = 22,
        FilledSquare = 23,
        BlankedTriangle = 24,
        FilledTriangle = 25,
        ManipulatorSquare = 26,
        ManipulatorDiamond = 27,
        ManipulatorCircle = 28,
        ManipulatorTriangle = 29,
        DoubleOpenArrow = 30,
        Wave = 31,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EPMIAnnotationType type() const override;

    EMainType mainType() const { return m_mainType; }
    void setMainType(EMainType type) { m_mainType = type; }

    ESubType subType() const { return m_subType; }
    void setSubType(ESubType type) { m_subType = type; }

    /// Does not cross: 1 in a fresh dimension.
    ECalloutFeatureAnnotationType calloutFeatureAnnotationType() const { return m_calloutFeatureAnnotationType; }
    void setCalloutFeatureAnnotationType(ECalloutFeatureAnnotationType type) { m_calloutFeatureAnnotationType = type; }

    /// The point, in the space of the model, whose coordinates a coordinate dimension states.
    const ExcVector3d& coord() const { return m_coord; }
    void setCoord(const ExcVector3d& coord) { m_coord = coord; }

    /// The measured or stated value, in the dimension's unit.
    double value() const { return m_value; }
    void setValue(double value) { m_value = value; }

    EDimUnit unit() const { return m_unit; }
    void setUnit(EDimUnit unit) { m_unit = unit; }

    /// How finely the value is shown. Whether it is a step or a number of places is agreed between the two programs.
    double valuePrecision() const { return m_valuePrecision; }
    void setValuePrecision(double precision) { m_valuePrecision = precision; }

    /// The same for the numerical tolerances.
    double tolerancePrecisionValue() const { return m_tolerancePrecisionValue; }
    void setTolerancePrecisionValue(double precision) { m_tolerancePrecisionValue = precision; }

    /// The deviations from the value that are allowed: shown after it, the upper one above the lower one.
    double numericalToleranceUpper() const { return m_numericalToleranceUpper; }
    void setNumericalToleranceUpper(double tolerance) { m_numericalToleranceUpper = tolerance; }
    double numericalToleranceLower() const { return m_numericalToleranceLower; }
    void setNumericalToleranceLower(double tolerance) { m_numericalToleranceLower = tolerance; }

    /// The same as texts, such as the classes "H7" and "g6" of a fit.
    const wstring& alphanumericalToleranceUpper() const { return m_alphanumericalToleranceUpper; }
    void setAlphanumericalToleranceUpper(const wstring& tolerance) { m_alphanumericalToleranceUpper = tolerance; }
    const wstring& alphanumericalToleranceLower() const { return m_alphanumericalToleranceLower; }
    void setAlphanumericalToleranceLower(const wstring& tolerance) { m_alphanumericalToleranceLower = tolerance; }

    /// Directly before the value, such as a diameter sign.
    const wstring& prefix() const { return m_prefix; }
    void setPrefix(const wstring& text) { m_prefix = text; }

    /// Directly after the value.
    const wstring& suffix() const { return m_suffix; }
    void setSuffix(const wstring& text) { m_suffix = text; }

    /// Before the value and its prefix.
    const wstring& before() const { return m_before; }
    void setBefore(const wstring& text) { m_before = text; }

    /// After the value, its suffix and its tolerances.
    const wstring& after() const { return m_after; }
    void setAfter(const wstring& text) { m_after = text; }

    /// Above the value.
    const wstring& upper() const { return m_upper; }
    void setUpper(const wstring& text) { m_upper = text; }

    /// Under the value.
    const wstring& lower() const { return m_lower; }
    void setLower(const wstring& text) { m_lower = text; }

    /// Under the dimension line.
    const wstring& below() const { return m_below; }
    void setBelow(const wstring& text) { m_below = text; }

    /// True when a number is shown in place of the value. The flag alone decides whether the number crosses; a reader
    /// that finds one sets the flag, and never clears it. The setter of the flag is spelt so.
    bool hasFakeNumericalValue() const { return m_hasFakeNumericalValue; }
    void setHasFaceNumericalValue(bool present) { m_hasFakeNumericalValue = present; }
    double fakeNumericalValue() const { return m_fakeNumericalValue; }
    void setFakeNumericalValue(double value) { m_fakeNumericalValue = value; }

    /// The same for a text in place of the value.
    bool hasFakeAlphanumericalValue() const { return m_hasFakeAlphanumericalValue; }
    void setHasAlphanumericalValue(bool present) { m_hasFakeAlphanumericalValue = present; }
    const wstring& fakeAlphanumericalValue() const { return m_fakeAlphanumericalValue; }
    void setFakeAlphanumericalValue(const wstring& value) { m_fakeAlphanumericalValue = value; }

    /// True when the dimension controls the geometry, false when it only measures it.
    bool isDriving() const { return m_driving; }
    void setDriving(bool driving) { m_driving = driving; }

    /// The ends of the dimension line, in the plane of the view.
    const ExcVector2d& lineStart() const { return m_lineStart; }
    void setLineStart(const ExcVector2d& point) { m_lineStart = point; }
    const ExcVector2d& lineEnd() const { return m_lineEnd; }
    void setLineEnd(const ExcVector2d& point) { m_lineEnd = point; }

    /// The symbols at the ends of the line. Both are written; a reader takes the end's symbol into the start, and
    /// leaves the end as it is.
    EArrowSymbol arrowSymbolStart() const { return m_arrowSymbolStart; }
    void setArrowSymbolStart(EArrowSymbol symbol) { m_arrowSymbolStart = symbol; }
    EArrowSymbol arrowSymbolEnd() const { return m_arrowSymbolEnd; }
    void setArrowSymbolEnd(EArrowSymbol symbol) { m_arrowSymbolEnd = symbol; }

    /// True when the symbols stand outside of the measured length.
    bool isSymbolOutside() const { return m_symbolOutside; }
    void setSymbolOutside(bool outside) { m_symbolOutside = outside; }

private:
    friend struct Described<ExcPMIDimension>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EMainType m_mainType = EMainType::Unknown;
    ESubType m_subType = ESubType::NoDim;
    ECalloutFeatureAnnotationType m_calloutFeatureAnnotationType{1};
    ExcVector3d m_coord;
    double m_value = 0.0;
    EDimUnit m_unit = EDimUnit::None;
    double m_valuePrecision = 0.0;
    double m_tolerancePrecisionValue = 0.0;
    double m_numericalToleranceUpper = 0.0;
    double m_numericalToleranceLower = 0.0;
    wstring m_alphanumericalToleranceUpper;
    wstring m_alphanumericalToleranceLower;
    wstring m_prefix;
    wstring m_suffix;
    wstring m_before;
    wstring m_after;
    wstring m_upper;
    wstring m_lower;
    wstring m_below;
    bool m_hasFakeNumericalValue = false;
    double m_fakeNumericalValue = 0.0;
    bool m_hasFakeAlphanumericalValue = false;
    wstring m_fakeAlphanumericalValue;
    bool m_driving = false;
    ExcVector2d m_lineStart;
    EArrowSymbol m_arrowSymbolStart = EArrowSymbol::NotUsed;
    ExcVector2d m_lineEnd;
    EArrowSymbol m_arrowSymbolEnd = EArrowSymbol::NotUsed;
    bool m_symbolOutside = false;
};

} // namespace vrx
