#include "vrx_api/mechanical/pmi_dimension.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

using EMainType = ExcPMIDimension::EMainType;
using ESubType = ExcPMIDimension::ESubType;
using EDimUnit = ExcPMIDimension::EDimUnit;
using EArrowSymbol = ExcPMIDimension::EArrowSymbol;

static constexpr EnumName<EMainType> kMainTypes[] = {
    {EMainType::Unknown, WIDE("unknown")},     {EMainType::Basic, WIDE("basic")},
    {EMainType::Reference, WIDE("reference")}, {EMainType::Tolerance, WIDE("tolerance")},
    {EMainType::CoordDim, WIDE("coord_dim")},  {EMainType::HoleCallout, WIDE("hole_callout")},
};
static constexpr const auto& enumTable(EMainType)
{
    return kMainTypes;
}

static constexpr EnumName<ESubType> kSubTypes[] = {
    {ESubType::Distance, WIDE("distance")},
    {ESubType::DistanceOffset, WIDE("distance_offset")},
    {ESubType::Length, WIDE("length")},
    {ESubType::LengthOrDistance, WIDE("length_or_distance")},
    {ESubType::LengthCurvilinear, WIDE("length_curvilinear")},
    {ESubType::Angle, WIDE("angle")},
    {ESubType::Radius, WIDE("radius")},
    {ESubType::RadiusTangent, WIDE("radius_tangent")},
    {ESubType::RadiusCylinder, WIDE("radius_cylinder")},
    {ESubType::RadiusEdge, WIDE("radius_edge")},
    {ESubType::Diameter, WIDE("diameter")},
    {ESubType::DiameterTangent, WIDE("diameter_tangent")},
    {ESubType::DiameterCylinder, WIDE("diameter_cylinder")},
    {ESubType::DiameterEdge, WIDE("diameter_edge")},
    {ESubType::DiameterCone, WIDE("diameter_cone")},
    {ESubType::Chamfer, WIDE("chamfer")},
    {ESubType::Slope, WIDE("slope")},
    {ESubType::DimGdt, WIDE("dim_gdt")},
    {ESubType::DimDatumFeature, WIDE("dim_datum_feature")},
    {ESubType::DimDatumTarget, WIDE("dim_datum_target")},
    {ESubType::DimBalloon, WIDE("dim_balloon")},
    {ESubType::NoDim, WIDE("no_dim")},
    {ESubType::AngleArc, WIDE("angle_arc")},
    {ESubType::LengthCircular, WIDE("length_circular")},
    {ESubType::Fillet, WIDE("fillet")},
    {ESubType::CoordDimension2d, WIDE("coord_dimension_2d")},
    {ESubType::CoordDimension3d, WIDE("coord_dimension_3d")},
};
static constexpr const auto& enumTable(ESubType)
{
    return kSubTypes;
}

static constexpr EnumName<EDimUnit> kDimUnits[] = {
    {EDimUnit::None, WIDE("none")},     {EDimUnit::Mm, WIDE("mm")},         {EDimUnit::Inch, WIDE("inch")},
    {EDimUnit::Meter, WIDE("meter")},   {EDimUnit::Cm, WIDE("cm")},         {EDimUnit::Km, WIDE("km")},
    {EDimUnit::Foot, WIDE("foot")},     {EDimUnit::FIF64, WIDE("f_i_f64")}, {EDimUnit::FIF16, WIDE("f_i_f16")},
    {EDimUnit::FIDec, WIDE("f_i_dec")}, {EDimUnit::Degree, WIDE("degree")}, {EDimUnit::Minute, WIDE("minute")},
    {EDimUnit::Second, WIDE("second")}, {EDimUnit::Radian, WIDE("radian")}, {EDimUnit::Grade, WIDE("grade")},
};
static constexpr const auto& enumTable(EDimUnit)
{
    return kDimUnits;
}

static constexpr EnumName<EArrowSymbol> kArrowSymbols[] = {
    {EArrowSymbol::NotUsed, WIDE("not_used")},
    {EArrowSymbol::Cross, WIDE("cross")},
    {EArrowSymbol::Plus, WIDE("plus")},
    {EArrowSymbol::Concentric, WIDE("concentric")},
    {EArrowSymbol::Coincident, WIDE("coincident")},
    {EArrowSymbol::FullCircle, WIDE("full_circle")},
    {EArrowSymbol::FullSquare, WIDE("full_square")},
    {EArrowSymbol::FullStar, WIDE("full_star")},
    {EArrowSymbol::Dot, WIDE("dot")},
    {EArrowSymbol::SmallDot, WIDE("small_dot")},
    {EArrowSymbol::Misc1, WIDE("misc1")},
    {EArrowSymbol::Misc2, WIDE("misc2")},
    {EArrowSymbol::FullCircle2, WIDE("full_circle2")},
    {EArrowSymbol::FullSquare2, WIDE("full_square2")},
    {EArrowSymbol::OpenArrow, WIDE("open_arrow")},
    {EArrowSymbol::UnfilledArrow, WIDE("unfilled_arrow")},
    {EArrowSymbol::BlankedArrow, WIDE("blanked_arrow")},
    {EArrowSymbol::FilledArrow, WIDE("filled_arrow")},
    {EArrowSymbol::UnfilledCircle, WIDE("unfilled_circle")},
    {EArrowSymbol::BlankedCircle, WIDE("blanked_circle")},
    {EArrowSymbol::FilledCircle, WIDE("filled_circle")},
    {EArrowSymbol::CrossedCircle, WIDE("crossed_circle")},
    {EArrowSymbol::BlankedSquare, WIDE("blanked_square")},
    {EArrowSymbol::FilledSquare, WIDE("filled_square")},
    {EArrowSymbol::BlankedTriangle, WIDE("blanked_triangle")},
    {EArrowSymbol::FilledTriangle, WIDE("filled_triangle")},
    {EArrowSymbol::ManipulatorSquare, WIDE("manipulator_square")},
    {EArrowSymbol::ManipulatorDiamond, WIDE("manipulator_diamond")},
    {EArrowSymbol::ManipulatorCircle, WIDE("manipulator_circle")},
    {EArrowSymbol::ManipulatorTriangle, WIDE("manipulator_triangle")},
    {EArrowSymbol::DoubleOpenArrow, WIDE("double_open_arrow")},
    {EArrowSymbol::Wave, WIDE("wave")},
};
static constexpr const auto& enumTable(EArrowSymbol)
{
    return kArrowSymbols;
}

static constexpr const char* kWrongNumericalTolerance = "ExcPMIDimension: invalid size of numerical_tolerance array.";
static constexpr const char* kWrongAlphanumericalTolerance =
    "ExcPMIDimension: invalid size of alphanumerical_tolerance array.";
static constexpr const char* kWrongTexts = "ExcPMIDimension: invalid size of texts array.";
static constexpr const char* kWrongLine = "ExcPMIDimension: invalid size of line array.";
static constexpr const char* kWrongArrows = "ExcPMIDimension: invalid size of arrows array.";

template <class Self, class Fields>
void ExcPMIDimension::describe(Self& self, Fields& fields)
{
    describeBase<ExcPMIAnnotation>(self, fields);
    fields.always(WIDE("main_type"), self.m_mainType);
    fields.always(WIDE("sub_type"), self.m_subType);
    fields.always(WIDE("coord"), self.m_coord);
    fields.always(WIDE("value"), self.m_value);
    fields.always(WIDE("unit"), self.m_unit);
    fields.always(WIDE("value_precision"), self.m_valuePrecision);
    fields.always(WIDE("tolerance_precision_value"), self.m_tolerancePrecisionValue);
    fields.always(WIDE("numerical_tolerance"), exactlyOrReset(kWrongNumericalTolerance, self.m_numericalToleranceLower,
                                                              self.m_numericalToleranceUpper));
    fields.always(WIDE("alphanumerical_tolerance"),
                  exactlyOrReset(kWrongAlphanumericalTolerance, self.m_alphanumericalToleranceLower,
                                 self.m_alphanumericalToleranceUpper));
    fields.always(WIDE("texts"), exactlyOrReset(kWrongTexts, self.m_prefix, self.m_suffix, self.m_before, self.m_after,
                                                self.m_upper, self.m_lower, self.m_below));
    fields.flagged(WIDE("fake_numerical_value"), self.m_hasFakeNumericalValue, self.m_fakeNumericalValue);
    fields.flagged(WIDE("fake_alphanumerical_value"), self.m_hasFakeAlphanumericalValue,
                   self.m_fakeAlphanumericalValue);
    fields.always(WIDE("is_driving"), self.m_driving);
    fields.always(WIDE("line"), exactly(kWrongLine, self.m_lineStart, self.m_lineEnd));
    // The reader takes the symbol of the end into the start as well, where it wins; the end's own is never read.
    fields.always(WIDE("arrows"), exactly(kWrongArrows, self.m_arrowSymbolStart,
                                          inOut(self.m_arrowSymbolStart, self.m_arrowSymbolEnd)));
    fields.always(WIDE("is_symbol_outside"), self.m_symbolOutside);
}
template struct Described<ExcPMIDimension>;

void ExcPMIDimension::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIDimension");
}

void ExcPMIDimension::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

EPMIAnnotationType ExcPMIDimension::type() const
{
    return EPMIAnnotationType::Dimension;
}

} // namespace vrx
