#include "pmi/step_tolerances.h"

#include "common/pmi_conventions.h"
#include "mp/narrow.h"
#include "pmi/step_datums.h"
#include "pmi/step_dimensions.h"
#include "pmi/step_quantity.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace
{

using Tolerance = vrx::ExcPMIGDT;
using EType = Tolerance::EToleranceType;
using EModifier = Tolerance::EToleranceModifier;

const std::pair<const char*, EType> kTypes[] = {
    {"ANGULARITY_TOLERANCE", EType::OrientationAngularity},
    {"CIRCULAR_RUNOUT_TOLERANCE", EType::RunOutCircular},
    {"COAXIALITY_TOLERANCE", EType::LocationCoaxiality},
    {"CONCENTRICITY_TOLERANCE", EType::LocationConcentricity},
    {"CYLINDRICITY_TOLERANCE", EType::FormCylindricity},
    {"FLATNESS_TOLERANCE", EType::FormFlatness},
    {"LINE_PROFILE_TOLERANCE", EType::FormProfileAnyLine},
    {"PARALLELISM_TOLERANCE", EType::OrientationParallelism},
    {"PERPENDICULARITY_TOLERANCE", EType::OrientationPerpendicularity},
    {"POSITION_TOLERANCE", EType::LocationTruePosition},
    {"ROUNDNESS_TOLERANCE", EType::FormCircularity},
    {"STRAIGHTNESS_TOLERANCE", EType::FormStraightness},
    {"SURFACE_PROFILE_TOLERANCE", EType::FormProfileAnySurface},
    {"SYMMETRY_TOLERANCE", EType::LocationSymmetry},
    {"TOTAL_RUNOUT_TOLERANCE", EType::RunOutTotal},
};

// A modifier of a tolerance or a datum reference that the model has; the others become words in the note.
struct Modifier
{
    const char* name; // in the file
    EModifier modifier;
};

const Modifier kModifiers[] = {
    {"MAXIMUM_MATERIAL_REQUIREMENT", EModifier::MaterialConditionMaximum},
    {"LEAST_MATERIAL_REQUIREMENT", EModifier::MaterialConditionLeast},
    {"REGARDLESS_OF_FEATURE_SIZE", EModifier::MaterialConditionRegardlessOfFeatureSize},
    {"TANGENT_PLANE", EModifier::TangentPlantTangent},
    {"FREE_STATE", EModifier::FreeStateFree},
    {"STATISTICAL_TOLERANCE", EModifier::StatisticalSymbol},
    {"COMMON_ZONE", EModifier::CommonZone},
};

EModifier modifierOf(const std::string& name)
{
    const auto* const found = std::find_if(std::begin(kModifiers), std::end(kModifiers),
                                           [&](const Modifier& one) { return name == one.name; });
    return found != std::end(kModifiers) ? found->modifier : EModifier::NoModifier;
}

// What the model has no modifier for, in words.
mp::wstring wordsOf(std::string name)
{
    std::replace(name.begin(), name.end(), '_', ' ');
    return mp::toWide(name);
}

void addLine(mp::wstring& text, const mp::wstring& line)
{
    text += (text.empty() ? WIDE("") : WIDE("\n")) + line;
}

std::string numberText(double number)
{
    char text[32] = {};
    std::snprintf(text, sizeof text, "%.10g", number);
    return text;
}

struct Modifiers
{
    std::vector<EModifier> known;
    mp::wstring others; // a line each
};

// A list of words, as tolerances have it, or of typed words and modifiers with values, as datum references do.
Modifiers modifiersOf(const StepRecord& record, std::size_t parameter)
{
    Modifiers modifiers;
    const auto add = [&](const std::string& name) {
        const EModifier modifier = modifierOf(name);
        if (modifier != EModifier::NoModifier)
        {
            modifiers.known.push_back(modifier);
        }
        else if (!name.empty())
        {
            addLine(modifiers.others, wordsOf(name));
        }
    };
    for (const StepParameter& element : record[parameter].list)
    {
        add(element.word);
    }
    for (const StepRecord& modifier : record.nexts(parameter)) // DATUM_REFERENCE_MODIFIER_WITH_VALUE
    {
        add(modifier[0].word);
    }
    return modifiers;
}

// The attribute of a type that a record of several types has by itself, and one of a single type behind the four of all
// tolerances.
std::vector<StepRecord> datumSystemsOf(const StepRecord& tolerance)
{
    const bool isComplex = tolerance.is("GEOMETRIC_TOLERANCE");
    return isComplex ? tolerance.as("GEOMETRIC_TOLERANCE_WITH_DATUM_REFERENCE").nexts(0) : tolerance.nexts(4);
}

class FrameReader
{
public:
    FrameReader(Tolerance& tolerance, const step_tolerances::DatumId& datumId)
        : m_tolerance(tolerance)
        , m_datumId(datumId)
    {
    }

    std::shared_ptr<Tolerance::Frame> read(const StepRecord& tolerance)
    {
        const auto frame = std::make_shared<Tolerance::Frame>();
        for (const StepRecord& system : datumSystemsOf(tolerance))
        {
            if (system.is("DATUM_SYSTEM"))
            {
                frame->setLabel(system.as("SHAPE_ASPECT").text(0));
                for (const StepRecord& compartment : constituents(system))
                {
                    frame->addDatumRef(reference(compartment));
                }
            }
            else if (system.is("DATUM_REFERENCE")) // (precedence, datum), in older files
            {
                Tolerance::DatumRef reference;
                addDatum(reference, system.next(1), {});
                frame->addDatumRef(reference);
            }
        }
        return frame->datumRefs().empty() ? nullptr : frame;
    }

private:
    static std::vector<StepRecord> constituents(const StepRecord& system)
    {
        return system.is("SHAPE_ASPECT") ? system.as("DATUM_SYSTEM").nexts(0) : system.nexts(4);
    }

    Tolerance::DatumRef reference(const StepRecord& compartment)
    {
        Tolerance::DatumRef reference;
        const Modifiers modifiers = modifiersOf(compartment, 5);
        if (compartment.next(4).is("DATUM"))
        {
            addDatum(reference, compartment.next(4), modifiers);
        }
        else
        {
            for (const StepRecord& element : compartment.nexts(4)) // of a common datum
            {
                Modifiers own = modifiersOf(element, 5);
                own.known.insert(own.known.end(), modifiers.known.begin(), modifiers.known.end());
                addDatum(reference, element.next(4), own);
            }
            addLine(modifiers);
        }
        return reference;
    }

    void addDatum(Tolerance::DatumRef& reference, const StepRecord& datum, const Modifiers& modifiers)
    {
        const mp::wstring label = step_datums::labelOf(datum);
        reference.setLabel(reference.label() + (reference.label().empty() ? WIDE("") : WIDE("-")) + label);
        Tolerance::ModifiedDatum modified;
        modified.setDatumId(m_datumId(datum));
        if (modifiers.known.empty())
        {
            reference.addModifiedDatum(modified);
        }
        for (const EModifier modifier : modifiers.known) // once for each
        {
            modified.setModifier(modifier);
            reference.addModifiedDatum(modified);
        }
        addLine(modifiers);
    }

    void addLine(const Modifiers& modifiers)
    {
        if (!modifiers.others.empty())
        {
            mp::wstring note = m_tolerance.note();
            ::addLine(note, modifiers.others);
            m_tolerance.setNote(note);
        }
    }

    Tolerance& m_tolerance;
    const step_tolerances::DatumId& m_datumId;
};

// What both lines of a frame have.
struct Line
{
    double value = 0;
    Tolerance::EToleranceValueType zone = Tolerance::EToleranceValueType::None;
    std::array<double, 2> rateUnit = {0, 0};
    std::array<EModifier, 2> modifiers = {EModifier::NoModifier, EModifier::NoModifier};
    mp::wstring note;
};

Line lineOf(const StepRecord& tolerance)
{
    Line line;
    line.value = quantityOf(tolerance.as("GEOMETRIC_TOLERANCE").next(2)).value;
    for (const StepRecord& zone : tolerance.users("TOLERANCE_ZONE"))
    {
        const std::string form = mp::toNarrow(zone.next(5).text(0));
        line.zone = form.find("spherical") != std::string::npos     ? Tolerance::EToleranceValueType::Spherical
                    : form.find("cylindrical") != std::string::npos ? Tolerance::EToleranceValueType::Diameter
                                                                    : line.zone;
    }
    if (tolerance.is("GEOMETRIC_TOLERANCE_WITH_DEFINED_UNIT"))
    {
        const double length = quantityOf(tolerance.as("GEOMETRIC_TOLERANCE_WITH_DEFINED_UNIT").next(0)).value;
        const StepRecord area = tolerance.as("GEOMETRIC_TOLERANCE_WITH_DEFINED_AREA_UNIT");
        line.rateUnit = {length, area.next(1) ? quantityOf(area.next(1)).value : length};
    }
    const StepRecord modified = tolerance.as("GEOMETRIC_TOLERANCE_WITH_MODIFIERS");
    const Modifiers modifiers =
        tolerance.is("GEOMETRIC_TOLERANCE_WITH_MODIFIERS") ? modifiersOf(modified, 0) : Modifiers();
    for (std::size_t i = 0; i < modifiers.known.size() && i < line.modifiers.size(); ++i)
    {
        line.modifiers[i] = modifiers.known[i];
    }
    line.note = modifiers.others;
    if (tolerance.is("GEOMETRIC_TOLERANCE_WITH_MAXIMUM_TOLERANCE"))
    {
        const double most = quantityOf(tolerance.as("GEOMETRIC_TOLERANCE_WITH_MAXIMUM_TOLERANCE").next(0)).value;
        addLine(line.note, mp::toWide(numberText(most) + " MAX"));
    }
    return line;
}

} // namespace

namespace step_tolerances
{

std::vector<Frame> all(const StepRecords& records)
{
    std::map<int, Frame> frames; // by the id of the upper line
    for (const auto& [type, ignored] : kTypes)
    {
        for (const StepRecord& tolerance : records.all(type))
        {
            frames.insert({tolerance.id(), {tolerance, {}}});
        }
    }
    for (const StepRecord& tolerance : records.all("GEOMETRIC_TOLERANCE")) // of a type that is not known
    {
        frames.insert({tolerance.id(), {tolerance, {}}});
    }
    for (const StepRecord& relationship : records.all("GEOMETRIC_TOLERANCE_RELATIONSHIP"))
    {
        const auto upper = frames.find(relationship.next(2).id());
        const auto lower = frames.find(relationship.next(3).id());
        const bool isComposite = mp::toNarrow(relationship.text(0)).find("composite") == 0;
        if (isComposite && upper != frames.end() && lower != frames.end() && upper != lower && !upper->second.lower &&
            !lower->second.lower)
        {
            upper->second.lower = lower->second.upper;
            frames.erase(lower);
        }
    }
    std::vector<Frame> result;
    result.reserve(frames.size());
    for (const auto& [id, frame] : frames)
    {
        result.push_back(frame);
    }
    return result;
}

std::vector<StepRecord> aspects(const StepRecord& tolerance)
{
    const StepRecord target = tolerance.as("GEOMETRIC_TOLERANCE").next(3);
    return step_dimensions::isDimension(target) ? step_dimensions::aspects(target) : std::vector<StepRecord>{target};
}

std::shared_ptr<vrx::ExcPMIGDT> make(const Frame& frame, const DatumId& datumId)
{
    auto tolerance = std::make_shared<Tolerance>();
    const StepRecord magnitude = frame.upper.as("GEOMETRIC_TOLERANCE").next(2);
    tolerance->setName(lengthUnitName(quantityOf(magnitude).unit));
    for (const auto& [name, type] : kTypes)
    {
        if (frame.upper.is(name))
        {
            tolerance->setToleranceType(type);
        }
    }
    const Line upper = lineOf(frame.upper);
    tolerance->setToleranceValue(upper.value);
    tolerance->setToleranceValueType(upper.zone);
    tolerance->setRateUnit(upper.rateUnit[0], upper.rateUnit[1]);
    tolerance->setZoneModifiers(upper.modifiers[0], upper.modifiers[1]);
    tolerance->setNote(upper.note);
    if (frame.upper.is("UNEQUALLY_DISPOSED_GEOMETRIC_TOLERANCE"))
    {
        const StepRecord displacement = frame.upper.as("UNEQUALLY_DISPOSED_GEOMETRIC_TOLERANCE").next(0);
        tolerance->setShiftValue(quantityOf(displacement).value - upper.value / 2);
    }
    for (const StepRecord& zone : frame.upper.users("TOLERANCE_ZONE"))
    {
        for (const StepRecord& projected : zone.users("PROJECTED_ZONE_DEFINITION"))
        {
            tolerance->setProjectionToleranceZoneLength(quantityOf(projected.next(3)).value);
        }
    }
    const StepRecord target = frame.upper.as("GEOMETRIC_TOLERANCE").next(3);
    tolerance->setAllAround(target.is("ALL_AROUND_SHAPE_ASPECT")    ? pmi_conventions::kAllAround
                            : target.is("PRODUCT_DEFINITION_SHAPE") ? pmi_conventions::kAllOver
                                                                    : 0);
    FrameReader datums(*tolerance, datumId);
    tolerance->setReferenceFrame(datums.read(frame.upper));
    if (frame.lower)
    {
        const Line lower = lineOf(frame.lower);
        tolerance->setComposite(true);
        tolerance->setCompositeToleranceValue(lower.value);
        tolerance->setCompositeToleranceValueType(lower.zone);
        tolerance->setCompositeRateUnits(lower.rateUnit[0], lower.rateUnit[1]);
        tolerance->setCompositeZoneModifier(lower.modifiers[0]);
        tolerance->setCompositeReferenceFrame(datums.read(frame.lower));
    }
    return tolerance;
}

} // namespace step_tolerances
