#pragma once

#include "vrx_api/mechanical/pmi_annotation.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vrx
{

/// A feature control frame: one geometric tolerance with its value, its modifiers and the datums that it refers to, and
/// a second line when it is composite. A reader takes all but what the annotation's base holds, which is written and
/// not taken back. Copies share the reference frames.
class VRX_API ExcPMIGDT : public ExcPMIAnnotation
{
public:
    enum class EToleranceType : std::int32_t
    {
        Unknown = 0,
        FormStraightness = 1,
        FormFlatness = 2,
        FormCircularity = 3,
        FormCylindricity = 4,
        FormProfileAnyLine = 5,
        FormProfileAnySurface = 6,
        OrientationParallelism = 7,
        OrientationPerpendicularity = 8,
        OrientationAngularity = 9,
        LocationTruePosition = 10,
        LocationConcentricity = 11,
        LocationCoaxiality = 12,
        LocationSymmetry = 13,
        LocationPositionOfAnyLine = 14,
        LocationPositionOfASurface = 15,
        RunOutCircular = 16,
        RunOutTotal = 17,
    };

    /// The shape of the tolerance zone, shown before the value.
    enum class EToleranceValueType : std::int32_t
    {
        None = 0,
        Diameter = 1,
        Radius = 2,
        Spherical = 3,
        Square = 4,
    };

    /// The circled letters after a value or a datum. The tangent plane is spelt as on the wire.
    enum class EToleranceModifier : std::int32_t
    {
        NoModifier = 0,
        MaterialConditionUnsupported = 1,
        MaterialConditionNoModifier = 2,
        MaterialConditionMaximum = 3,
        MaterialConditionLeast = 4,
        MaterialConditionRegardlessOfFeatureSize = 5,
        TangentPlantUnsupported = 6,
        TangentPlantNonTangent = 7,
        TangentPlantTangent = 8,
        FreeStateUnsupported = 9,
        FreeStateFree = 10,
        FreeStateNotFree = 11,
        StatisticalSymbol = 12,
        CommonZone = 13,
    };

    /// A datum with its modifier. The id is that of an `ExcPMIDatum`; the library does not resolve it.
    class VRX_API ModifiedDatum : public IJsonObject
    {
    public:
        void readObject(const JsonValue& value) override;
        void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

        const wstring& datumId() const { return m_datumId; }
        void setDatumId(const wstring& id) { m_datumId = id; }

        EToleranceModifier modifier() const { return m_modifier; }
        void setModifier(EToleranceModifier modifier) { m_modifier = modifier; }

    private:
        friend struct Described<ModifiedDatum>;
        template <class Self, class Fields>
        static void describe(Self& self, Fields& fields);

        wstring m_datumId;
        EToleranceModifier m_modifier = EToleranceModifier::NoModifier;
    };

    /// One compartment of the frame after the value: a datum, or the datums of a common one ("A-B").
    class VRX_API DatumRef : public IJsonObject
    {
    public:
        void readObject(const JsonValue& value) override;
        void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

        const wstring& label() const { return m_label; }
        void setLabel(const wstring& label) { m_label = label; }

        const std::vector<ModifiedDatum>& modifiedDatums() const { return m_modifiedDatums; }
        void addModifiedDatum(const ModifiedDatum& datum) { m_modifiedDatums.push_back(datum); }

    private:
        friend struct Described<DatumRef>;
        template <class Self, class Fields>
        static void describe(Self& self, Fields& fields);

        wstring m_label;
        std::vector<ModifiedDatum> m_modifiedDatums;
    };

    /// The datums that a tolerance refers to, in their order: primary, secondary, tertiary.
    class VRX_API Frame : public IJsonObject
    {
    public:
        void readObject(const JsonValue& value) override;
        void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

        const wstring& label() const { return m_label; }
        void setLabel(const wstring& label) { m_label = label; }

        const std::vector<DatumRef>& datumRefs() const { return m_datumRefs; }
        void addDatumRef(const DatumRef& reference) { m_datumRefs.push_back(reference); }

    private:
        friend struct Described<Frame>;
        template <class Self, class Fields>
        static void describe(Self& self, Fields& fields);

        wstring m_label;
        std::vector<DatumRef> m_datumRefs;
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EPMIAnnotationType type() const override;

    EToleranceType toleranceType() const { return m_toleranceType; }
    void setToleranceType(EToleranceType type) { m_toleranceType = type; }

    EToleranceValueType toleranceValueType() const { return m_toleranceValueType; }
    void setToleranceValueType(EToleranceValueType type) { m_toleranceValueType = type; }

    double toleranceValue() const { return m_toleranceValue; }
    void setToleranceValue(double value) { m_toleranceValue = value; }

    double refineTolerance() const { return m_refineTolerance; }
    void setRefineTolerance(double tolerance) { m_refineTolerance = tolerance; }

    /// The length or the area for which a tolerance per unit holds, such as 0.1 per 100 x 100.
    void rateUnits(double& first, double& second) const;
    void setRateUnit(double first, double second);

    /// The length of a projected tolerance zone.
    double projectionToleranceZoneLength() const { return m_projectionToleranceZoneLength; }
    void setProjectionToleranceZoneLength(double length) { m_projectionToleranceZoneLength = length; }

    double shiftValue() const { return m_shiftValue; }
    void setShiftValue(double value) { m_shiftValue = value; }

    /// The "all around" symbol, which travels as a number: 0 when there is none.
    double allAround() const { return m_allAround; }
    void setAllAround(double allAround) { m_allAround = allAround; }

    /// The text near the frame.
    const wstring& note() const { return m_note; }
    void setNote(const wstring& note) { m_note = note; }

    /// The modifiers after the value.
    void zoneModifiers(EToleranceModifier& first, EToleranceModifier& second) const;
    void setZoneModifiers(EToleranceModifier first, EToleranceModifier second);

    const std::shared_ptr<Frame>& referenceFrame() const { return m_referenceFrame; }
    void setReferenceFrame(const std::shared_ptr<Frame>& frame) { m_referenceFrame = frame; }

    /// True when there is a second line, which the fields below are about. A reader clears it when there is none, and
    /// leaves those fields.
    bool isComposite() const { return m_composite; }
    void setComposite(bool composite) { m_composite = composite; }

    EToleranceValueType compositeToleranceValueType() const { return m_compositeToleranceValueType; }
    void setCompositeToleranceValueType(EToleranceValueType type) { m_compositeToleranceValueType = type; }

    double compositeToleranceValue() const { return m_compositeToleranceValue; }
    void setCompositeToleranceValue(double value) { m_compositeToleranceValue = value; }

    void compositeRateUnits(double& first, double& second) const;
    void setCompositeRateUnits(double first, double second);

    EToleranceModifier compositeZoneModifier() const { return m_compositeZoneModifier; }
    void setCompositeZoneModifier(EToleranceModifier modifier) { m_compositeZoneModifier = modifier; }

    const std::shared_ptr<Frame>& compositeReferenceFrame() const { return m_compositeReferenceFrame; }
    void setCompositeReferenceFrame(const std::shared_ptr<Frame>& frame) { m_compositeReferenceFrame = frame; }

private:
    friend struct Described<ExcPMIGDT>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EToleranceType m_toleranceType = EToleranceType::Unknown;
    EToleranceValueType m_toleranceValueType = EToleranceValueType::None;
    double m_toleranceValue = 0.0;
    double m_refineTolerance = 0.0;
    double m_rateUnit1 = 0.0;
    double m_rateUnit2 = 0.0;
    double m_projectionToleranceZoneLength = 0.0;
    double m_shiftValue = 0.0;
    double m_allAround = 0.0;
    wstring m_note;
    EToleranceModifier m_zoneModifier1 = EToleranceModifier::NoModifier;
    EToleranceModifier m_zoneModifier2 = EToleranceModifier::NoModifier;
    std::shared_ptr<Frame> m_referenceFrame;
    bool m_composite = false;
    EToleranceValueType m_compositeToleranceValueType = EToleranceValueType::None;
    double m_compositeToleranceValue = 0.0;
    double m_compositeRateUnit1 = 0.0;
    double m_compositeRateUnit2 = 0.0;
    EToleranceModifier m_compositeZoneModifier = EToleranceModifier::NoModifier;
    std::shared_ptr<Frame> m_compositeReferenceFrame;
};

} // namespace vrx
