#include "vrx_api/mechanical/pmi_gdt.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

using EToleranceType = ExcPMIGDT::EToleranceType;
using EToleranceValueType = ExcPMIGDT::EToleranceValueType;
using EToleranceModifier = ExcPMIGDT::EToleranceModifier;

static constexpr EnumName<EToleranceType> kToleranceTypes[] = {
    {EToleranceType::Unknown, WIDE("unknown")},
    {EToleranceType::FormStraightness, WIDE("form_straightness")},
    {EToleranceType::FormFlatness, WIDE("form_flatness")},
    {EToleranceType::FormCircularity, WIDE("form_circularity")},
    {EToleranceType::FormCylindricity, WIDE("form_cylindricity")},
    {EToleranceType::FormProfileAnyLine, WIDE("form_profile_any_line")},
    {EToleranceType::FormProfileAnySurface, WIDE("form_profile_any_surface")},
    {EToleranceType::OrientationParallelism, WIDE("orientation_parallelism")},
    {EToleranceType::OrientationPerpendicularity, WIDE("orientation_perpendicularity")},
    {EToleranceType::OrientationAngularity, WIDE("orientation_angularity")},
    {EToleranceType::LocationTruePosition, WIDE("location_true_position")},
    {EToleranceType::LocationConcentricity, WIDE("location_concentricity")},
    {EToleranceType::LocationCoaxiality, WIDE("location_coaxiality")},
    {EToleranceType::LocationSymmetry, WIDE("location_symmetry")},
    {EToleranceType::LocationPositionOfAnyLine, WIDE("location_position_of_any_line")},
    {EToleranceType::LocationPositionOfASurface, WIDE("Location_position_of_a_surface")},
    {EToleranceType::RunOutCircular, WIDE("run_out_circular")},
    {EToleranceType::RunOutTotal, WIDE("run_out_total")},
};
static constexpr const auto& enumTable(EToleranceType)
{
    return kToleranceTypes;
}

static constexpr EnumName<EToleranceValueType> kToleranceValueTypes[] = {
    {EToleranceValueType::None, WIDE("none")},     {EToleranceValueType::Diameter, WIDE("diameter")},
    {EToleranceValueType::Radius, WIDE("radius")}, {EToleranceValueType::Spherical, WIDE("spherical")},
    {EToleranceValueType::Square, WIDE("square")},
};
static constexpr const auto& enumTable(EToleranceValueType)
{
    return kToleranceValueTypes;
}

static constexpr EnumName<EToleranceModifier> kToleranceModifiers[] = {
    {EToleranceModifier::NoModifier, WIDE("no_modifier")},
    {EToleranceModifier::MaterialConditionUnsupported, WIDE("material_condition_unsupported")},
    {EToleranceModifier::MaterialConditionNoModifier, WIDE("material_condition_no_modifier")},
    {EToleranceModifier::MaterialConditionMaximum, WIDE("material_condition_maximum")},
    {EToleranceModifier::MaterialConditionLeast, WIDE("material_condition_least")},
    {EToleranceModifier::MaterialConditionRegardlessOfFeatureSize,
     WIDE("material_condition_regardless_of_feature_size")},
    {EToleranceModifier::TangentPlantUnsupported, WIDE("tangent_plant_unsupported")},
    {EToleranceModifier::TangentPlantNonTangent, WIDE("tangent_plant_non_tangent")},
    {EToleranceModifier::TangentPlantTangent, WIDE("tangent_plant_tangent")},
    {EToleranceModifier::FreeStateUnsupported, WIDE("free_state_unsupported")},
    {EToleranceModifier::FreeStateFree, WIDE("free_state_free")},
    {EToleranceModifier::FreeStateNotFree, WIDE("free_state_not_free")},
    {EToleranceModifier::StatisticalSymbol, WIDE("statistical_symbol")},
    {EToleranceModifier::CommonZone, WIDE("common_zone")},
};
static constexpr const auto& enumTable(EToleranceModifier)
{
    return kToleranceModifiers;
}

template <class Self, class Fields>
void ExcPMIGDT::ModifiedDatum::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("datum_id"), self.m_datumId);
    fields.always(WIDE("tolerance_modifier"), self.m_modifier);
}
template struct Described<ExcPMIGDT::ModifiedDatum>;

void ExcPMIGDT::ModifiedDatum::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIGDT::ModifiedDatum");
}

void ExcPMIGDT::ModifiedDatum::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

template <class Self, class Fields>
void ExcPMIGDT::DatumRef::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("label"), reference(EIdSpace::Datum, self.m_label));
    fields.always(WIDE("modified_datums"), self.m_modifiedDatums);
}
template struct Described<ExcPMIGDT::DatumRef>;

void ExcPMIGDT::DatumRef::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIGDT::DatumRef");
}

void ExcPMIGDT::DatumRef::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

template <class Self, class Fields>
void ExcPMIGDT::Frame::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("label"), self.m_label);
    fields.always(WIDE("datum_refs"), self.m_datumRefs);
}
template struct Described<ExcPMIGDT::Frame>;

void ExcPMIGDT::Frame::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIGDT::Frame");
}

void ExcPMIGDT::Frame::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

static constexpr const char* kWrongRateUnit = "ExcPMIGDT: invalid size of rate_unit array";
static constexpr const char* kWrongZoneModifiers = "ExcPMIGDT: invalid size of zone_modifiers array";
static constexpr const char* kWrongCompositeRateUnit = "ExcPMIGDT: invalid size of composite rate_unit array.";

template <class Self, class Fields>
void ExcPMIGDT::describe(Self& self, Fields& fields)
{
    // Unlike on the first line, the modifier of the second is no array.
    const auto compositeLine = [](auto& gdt, auto& line) {
        line.always(WIDE("tolerance_value_type"), gdt.m_compositeToleranceValueType);
        line.always(WIDE("tolerance_value"), gdt.m_compositeToleranceValue);
        line.always(WIDE("rate_unit"),
                    exactlyOrReset(kWrongCompositeRateUnit, gdt.m_compositeRateUnit1, gdt.m_compositeRateUnit2));
        line.always(WIDE("zone_modifiers"), gdt.m_compositeZoneModifier);
        line.filled(WIDE("ref_frame"), gdt.m_compositeReferenceFrame);
    };

    describeBaseForWriting<ExcPMIAnnotation>(self, fields);
    fields.always(WIDE("tolerance_type"), self.m_toleranceType);
    fields.always(WIDE("tolerance_value_type"), self.m_toleranceValueType);
    fields.always(WIDE("tolerance_value"), self.m_toleranceValue);
    fields.always(WIDE("refine_tolerance"), self.m_refineTolerance);
    fields.always(WIDE("rate_unit"), exactlyOrReset(kWrongRateUnit, self.m_rateUnit1, self.m_rateUnit2));
    fields.always(WIDE("proj_tol_zone_length"), self.m_projectionToleranceZoneLength);
    fields.always(WIDE("shift_value"), self.m_shiftValue);
    fields.always(WIDE("all_around"), self.m_allAround);
    fields.always(WIDE("note"), self.m_note);
    fields.always(WIDE("zone_modifiers"), exactly(kWrongZoneModifiers, self.m_zoneModifier1, self.m_zoneModifier2));
    fields.filled(WIDE("ref_frame"), self.m_referenceFrame);
    fields.optional(WIDE("composite_data"), self.m_composite, record(self, compositeLine));
}
template struct Described<ExcPMIGDT>;

void ExcPMIGDT::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIGDT");
}

void ExcPMIGDT::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

EPMIAnnotationType ExcPMIGDT::type() const
{
    return EPMIAnnotationType::GDT;
}

void ExcPMIGDT::rateUnits(double& first, double& second) const
{
    first = m_rateUnit1;
    second = m_rateUnit2;
}

void ExcPMIGDT::setRateUnit(double first, double second)
{
    m_rateUnit1 = first;
    m_rateUnit2 = second;
}

void ExcPMIGDT::zoneModifiers(EToleranceModifier& first, EToleranceModifier& second) const
{
    first = m_zoneModifier1;
    second = m_zoneModifier2;
}

void ExcPMIGDT::setZoneModifiers(EToleranceModifier first, EToleranceModifier second)
{
    m_zoneModifier1 = first;
    m_zoneModifier2 = second;
}

void ExcPMIGDT::compositeRateUnits(double& first, double& second) const
{
    first = m_compositeRateUnit1;
    second = m_compositeRateUnit2;
}

void ExcPMIGDT::setCompositeRateUnits(double first, double second)
{
    m_compositeRateUnit1 = first;
    m_compositeRateUnit2 = second;
}

} // namespace vrx
