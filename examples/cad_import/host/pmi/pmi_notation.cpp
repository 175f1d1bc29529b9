#include "pmi/pmi_notation.h"

#include "common/pmi_conventions.h"
#include "mp/narrow.h"
#include "number_text.h"
#include "pmi/control_frame.h"

#include <algorithm>
#include <string>

namespace pmi_notation
{

namespace
{

using mp::wstring;
using EMainType = vrx::ExcPMIDimension::EMainType;
using ESubType = vrx::ExcPMIDimension::ESubType;
using EDimUnit = vrx::ExcPMIDimension::EDimUnit;
using EToleranceType = vrx::ExcPMIGDT::EToleranceType;
using EZone = vrx::ExcPMIGDT::EToleranceValueType;
using EModifier = vrx::ExcPMIGDT::EToleranceModifier;

template <class Number>
struct Symbol
{
    Number number;
    const mp::wchar* text;
};

const Symbol<ESubType> kDimensionSymbols[] = {
    {ESubType::Radius, WIDE("R")},           {ESubType::RadiusTangent, WIDE("R")},
    {ESubType::RadiusCylinder, WIDE("R")},   {ESubType::RadiusEdge, WIDE("R")},
    {ESubType::Diameter, WIDE("⌀")},         {ESubType::DiameterTangent, WIDE("⌀")},
    {ESubType::DiameterCylinder, WIDE("⌀")}, {ESubType::DiameterEdge, WIDE("⌀")},
    {ESubType::DiameterCone, WIDE("⌀")},     {ESubType::Fillet, WIDE("R")},
};

// Angles have their sign; lengths have none.
const Symbol<EDimUnit> kAngleUnits[] = {
    {EDimUnit::Degree, WIDE("°")},    {EDimUnit::Minute, WIDE("′")},   {EDimUnit::Second, WIDE("″")},
    {EDimUnit::Radian, WIDE(" rad")}, {EDimUnit::Grade, WIDE(" gon")},
};

const Symbol<EToleranceType> kToleranceSymbols[] = {
    {EToleranceType::FormStraightness, WIDE("⏤")},
    {EToleranceType::FormFlatness, WIDE("⏥")},
    {EToleranceType::FormCircularity, WIDE("○")},
    {EToleranceType::FormCylindricity, WIDE("⌭")},
    {EToleranceType::FormProfileAnyLine, WIDE("⌒")},
    {EToleranceType::FormProfileAnySurface, WIDE("⌓")},
    {EToleranceType::OrientationParallelism, WIDE("∥")},
    {EToleranceType::OrientationPerpendicularity, WIDE("⟂")},
    {EToleranceType::OrientationAngularity, WIDE("∠")},
    {EToleranceType::LocationTruePosition, WIDE("⌖")},
    {EToleranceType::LocationConcentricity, WIDE("◎")},
    {EToleranceType::LocationCoaxiality, WIDE("◎")},
    {EToleranceType::LocationSymmetry, WIDE("⌯")},
    {EToleranceType::LocationPositionOfAnyLine, WIDE("⌒")},
    {EToleranceType::LocationPositionOfASurface, WIDE("⌓")},
    {EToleranceType::RunOutCircular, WIDE("↗")},
    {EToleranceType::RunOutTotal, WIDE("⌰")},
};

const Symbol<EZone> kZoneSigns[] = {
    {EZone::Diameter, WIDE("⌀")},
    {EZone::Radius, WIDE("R")},
    {EZone::Spherical, WIDE("S⌀")},
    {EZone::Square, WIDE("□")},
};

const Symbol<EModifier> kModifierSigns[] = {
    {EModifier::MaterialConditionMaximum, WIDE("Ⓜ")},
    {EModifier::MaterialConditionLeast, WIDE("Ⓛ")},
    {EModifier::MaterialConditionRegardlessOfFeatureSize, WIDE("Ⓢ")},
    {EModifier::TangentPlantTangent, WIDE("Ⓣ")},
    {EModifier::FreeStateFree, WIDE("Ⓕ")},
    {EModifier::StatisticalSymbol, WIDE("⟨ST⟩")},
    {EModifier::CommonZone, WIDE("CZ")},
};

using ETarget = vrx::ExcPMIDatumTarget::EType;

const Symbol<ETarget> kTargetWords[] = {
    {ETarget::Point, WIDE("point")},          {ETarget::Line, WIDE("line")},     {ETarget::AreaCircular, WIDE("area")},
    {ETarget::AreaRectangular, WIDE("area")}, {ETarget::AreaFace, WIDE("face")}, {ETarget::Feature, WIDE("feature")},
};

const mp::wchar* const kNoValue = WIDE("–");      // where none is stated
const mp::wchar* const kUnknownDatum = WIDE("?"); // in a common datum

// What a number has no symbol for is left out.
template <class Number, std::size_t Count>
wstring symbol(const Symbol<Number> (&symbols)[Count], Number number)
{
    const auto* const found =
        std::find_if(symbols, symbols + Count, [number](const auto& one) { return one.number == number; });
    return found != symbols + Count ? found->text : wstring();
}

// Appends a text to a line; an empty one leaves no gap, and one of several lines becomes one.
void append(wstring& line, const wstring& text)
{
    if (!line.empty() && !text.empty())
    {
        line += WIDE(" ");
    }
    line += text;
    std::replace(line.begin(), line.end(), WIDE('\n'), WIDE(' '));
}

wstring deviationText(double deviation, double places)
{
    const wstring text = numberText(deviation, places);
    if (text.find_first_not_of(WIDE("0.")) == wstring::npos)
    {
        return WIDE("0");
    }
    return deviation > 0 ? WIDE("+") + text : text;
}

wstring deviations(const vrx::ExcPMIDimension& dimension, const wstring& unit)
{
    const double places = dimension.tolerancePrecisionValue();
    const wstring upper = numberText(dimension.numericalToleranceUpper(), places);
    if (upper == numberText(-dimension.numericalToleranceLower(), places))
    {
        return WIDE("±") + upper + unit;
    }
    return deviationText(dimension.numericalToleranceUpper(), places) + unit + WIDE("/") +
           deviationText(dimension.numericalToleranceLower(), places) + unit;
}

// Limits stand in place of the value as one text.
wstring shownValue(const vrx::ExcPMIDimension& dimension, const wstring& unit)
{
    if (dimension.hasFakeAlphanumericalValue())
    {
        return dimension.fakeAlphanumericalValue() + unit;
    }
    if (!hasValue(dimension))
    {
        return kNoValue;
    }
    const double value = dimension.hasFakeNumericalValue() ? dimension.fakeNumericalValue() : dimension.value();
    return numberText(value, dimension.valuePrecision()) + unit;
}

wstring framed(EMainType type, const wstring& text)
{
    switch (type)
    {
    case EMainType::Basic:
        return WIDE("[") + text + WIDE("]");
    case EMainType::Reference:
        return WIDE("(") + text + WIDE(")");
    default:
        return text;
    }
}

// The size of an area, or a length alone: lines are straight along a length.
wstring rateText(const vrx::ExcPMIGDT& gdt, const ControlFrameLine& line)
{
    if (line.rateUnit[0] == 0)
    {
        return {};
    }
    const wstring length = WIDE("/") + numberText(line.rateUnit[0]);
    const bool isLength = gdt.toleranceType() == EToleranceType::FormStraightness || line.rateUnit[1] == 0;
    return isLength ? length : length + WIDE("×") + numberText(line.rateUnit[1]);
}

// The tolerance of the whole, where the value is that of each piece.
wstring wholeTolerance(const vrx::ExcPMIGDT& gdt)
{
    const double tolerance = gdt.refineTolerance();
    return tolerance == 0 ? wstring()
                          : symbol(kZoneSigns, gdt.toleranceValueType()) + numberText(tolerance) + WIDE(" /");
}

// A circled letter with its length; 0 is none.
wstring circled(const mp::wchar* letter, double length)
{
    return length == 0 ? wstring() : letter + numberText(length);
}

wstring allAroundText(const vrx::ExcPMIGDT& gdt)
{
    if (gdt.allAround() == 0)
    {
        return {};
    }
    return gdt.allAround() == pmi_conventions::kAllOver ? WIDE("all over") : WIDE("all around");
}

// A compartment of a frame, such as "A", "B Ⓜ" or the common datum "A-B": several modifiers of one datum follow each
// other.
template <class AppendModifier>
wstring compartment(const vrx::ExcPMIGDT::DatumRef& datums, const ReceivedPmi& pmi, AppendModifier appendModifier)
{
    if (datums.modifiedDatums().empty())
    {
        return datums.label();
    }
    const wstring& first = datums.modifiedDatums().front().datumId();
    const bool isCommon = std::any_of(datums.modifiedDatums().begin(), datums.modifiedDatums().end(),
                                      [&first](const auto& datum) { return datum.datumId() != first; });
    const wstring unknown = isCommon ? wstring(kUnknownDatum) : datums.label();
    wstring text;
    const wstring* before = nullptr;
    for (const vrx::ExcPMIGDT::ModifiedDatum& datum : datums.modifiedDatums())
    {
        if (before == nullptr || datum.datumId() != *before)
        {
            const wstring label = pmi.label(datum.datumId());
            text += (before != nullptr ? wstring(WIDE("-")) : wstring()) + (label.empty() ? unknown : label);
        }
        appendModifier(text, datum.modifier());
        before = &datum.datumId();
    }
    return text;
}

} // namespace

mp::wstring fit(const vrx::ExcPMIDimension& dimension)
{
    const wstring& hole = dimension.alphanumericalToleranceUpper();
    const wstring& shaft = dimension.alphanumericalToleranceLower();
    return hole.empty() || shaft.empty() ? hole + shaft : hole + WIDE("/") + shaft;
}

bool hasDeviations(const vrx::ExcPMIDimension& dimension)
{
    return dimension.mainType() == EMainType::Tolerance &&
           (dimension.numericalToleranceUpper() != 0 || dimension.numericalToleranceLower() != 0);
}

bool hasValue(const vrx::ExcPMIDimension& dimension)
{
    return dimension.unit() != EDimUnit::None || dimension.value() != 0;
}

bool hasValue(const vrx::ExcPMIGDT& gdt)
{
    return !gdt.name().empty();
}

bool isAngle(const vrx::ExcPMIDimension& dimension)
{
    return !symbol(kAngleUnits, dimension.unit()).empty();
}

mp::wstring text(const vrx::ExcPMIDimension& dimension)
{
    const wstring unit = symbol(kAngleUnits, dimension.unit());
    wstring value = dimension.prefix().empty() ? symbol(kDimensionSymbols, dimension.subType()) : dimension.prefix();
    append(value, shownValue(dimension, unit));
    append(value, dimension.suffix());

    wstring line;
    append(line, dimension.before());
    append(line, dimension.upper());
    append(line, framed(dimension.mainType(), value));
    append(line, fit(dimension));
    if (hasDeviations(dimension) && !dimension.hasFakeAlphanumericalValue())
    {
        append(line, deviations(dimension, unit));
    }
    append(line, dimension.after());
    append(line, dimension.lower());
    append(line, dimension.below());
    return line;
}

std::vector<mp::wstring> lines(const vrx::ExcPMIGDT& gdt, const ReceivedPmi& pmi)
{
    std::vector<wstring> lines;
    for (const ControlFrameLine& frame : controlFrameLines(gdt))
    {
        const bool isFirst = lines.empty();
        wstring line;
        append(line, isFirst ? gdt.note() : wstring());
        append(line, symbol(kToleranceSymbols, gdt.toleranceType()));
        append(line, isFirst ? wholeTolerance(gdt) : wstring());
        append(line, hasValue(gdt) ? symbol(kZoneSigns, frame.zone) + numberText(frame.value) + rateText(gdt, frame)
                                   : wstring(kNoValue));
        for (const EModifier modifier : frame.modifiers)
        {
            append(line, symbol(kModifierSigns, modifier));
        }
        append(line, isFirst && hasValue(gdt) ? circled(WIDE("Ⓟ "), gdt.projectionToleranceZoneLength()) : wstring());
        append(line, isFirst && hasValue(gdt) && gdt.shiftValue() != 0
                         ? WIDE("Ⓤ ") + numberText(gdt.shiftValue() + gdt.toleranceValue() / 2)
                         : wstring());
        for (const vrx::ExcPMIGDT::DatumRef& datums : frame.datums)
        {
            append(line, compartment(datums, pmi, [](wstring& text, EModifier modifier) {
                       append(text, symbol(kModifierSigns, modifier));
                   }));
        }
        append(line, isFirst ? allAroundText(gdt) : wstring());
        lines.push_back(line);
    }
    return lines;
}

mp::wstring label(const vrx::ExcPMIGDT::DatumRef& datums, const ReceivedPmi& pmi)
{
    return compartment(datums, pmi, [](wstring&, EModifier) {});
}

mp::wstring text(const vrx::ExcPMIDatum& datum, const ReceivedPmi& pmi)
{
    if (datum.targetIds().empty())
    {
        return datum.label();
    }
    wstring targets = WIDE("(targets");
    for (const wstring& id : datum.targetIds())
    {
        append(targets, pmi.label(id));
    }
    return datum.label() + WIDE(" ") + targets + WIDE(")");
}

mp::wstring text(const vrx::ExcPMIDatumTarget& target)
{
    wstring line = target.label().empty() ? target.lowerText() : target.label();
    append(line, (target.hasDiameter() ? WIDE("⌀") : wstring()) + target.upperText());
    append(line, symbol(kTargetWords, target.targetType()));
    return line;
}

mp::wstring text(const vrx::ExcPMINote& note)
{
    wstring line;
    for (const std::shared_ptr<vrx::ExcPMINote::Text>& text : note.texts())
    {
        append(line, text->label());
    }
    return line;
}

} // namespace pmi_notation
