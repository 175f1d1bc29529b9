#include "pmi/step_tolerances.h"

#include "common/pmi_conventions.h"
#include "mp/narrow.h"
#include "pmi/step_datums.h"
#include "pmi/step_dimensions.h"
#include "pmi/step_quantity.h"
#include "pmi/text_lines.h"
#include "pmi/tolerance_types.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace
{

using Tolerance = vrx::ExcPMIGDT;
using EModifier = Tolerance::EToleranceModifier;

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
    // in older files
    {"MAXIMUM_MATERIAL_CONDITION", EModifier::MaterialConditionMaximum},
    {"LEAST_MATERIAL_CONDITION", EModifier::MaterialConditionLeast},
};

EModifier modifierOf(const std::string& name)
{
    const auto* const found = std::find_if(std::begin(kModifiers), std::end(kModifiers),
                                           [&](const Modifier& one) { return name == one.name; });
    return found != std::end(kModifiers) ? found->modifier : EModifier::NoModifier;
}

const mp::wchar* const kMissing = WIDE("?");

// What the model has no modifier for, in words.
mp::wstring wordsOf(std::string name)
{
    std::replace(name.begin(), name.end(), '_', ' ');
    return mp::toWide(name);
}

// The lengths of a frame, in one unit.
class Lengths
{
public:
    explicit Lengths(StepQuantity::EUnit unit)
        : m_unit(unit)
    {
    }

    double read(const StepRecord& measure)
    {
        const StepQuantity quantity = quantityOf(measure).in(m_unit);
        miss(!quantity);
        return quantity.value;
    }

    // Something without which the frame would say something else.
    void miss(bool isMissing) { m_areAll = m_areAll && !isMissing; }

    // None when something is missing.
    mp::wstring unitName() const { return m_areAll ? lengthUnitName(m_unit) : mp::wstring(); }

private:
    StepQuantity::EUnit m_unit;
    bool m_areAll = true;
};

struct Modifiers
{
    std::vector<EModifier> known;
    std::vector<mp::wstring> others; // in words
};

const std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

// A list of words, as tolerances have it, or of typed words and modifiers with values, as datum references do. Those
// for which there is no room are among the others.
Modifiers modifiersOf(const StepRecord& record, std::size_t parameter, Lengths& lengths, std::size_t room = kAnyNumber)
{
    Modifiers modifiers;
    const std::vector<StepRecord> withValues = record.elements(parameter); // DATUM_REFERENCE_MODIFIER_WITH_VALUE
    for (std::size_t i = 0; i < withValues.size(); ++i)
    {
        const std::string& name = record[parameter].list[i].word;
        const EModifier modifier = modifierOf(name);
        if (modifier != EModifier::NoModifier && modifiers.known.size() < room)
        {
            modifiers.known.push_back(modifier);
        }
        else if (!name.empty())
        {
            modifiers.others.push_back(wordsOf(name));
        }
        else
        {
            const mp::wstring value = numberText(lengths.read(withValues[i].next(1)), 0);
            modifiers.others.push_back(withValues[i] ? wordsOf(withValues[i][0].word) + WIDE(" ") + value : kMissing);
        }
    }
    return modifiers;
}

// The attribute of a type that a record of several types has by itself, and one of a single type behind the four of all
// tolerances.
std::vector<StepRecord> datumSystemsOf(const StepRecord& tolerance)
{
    const bool isComplex = tolerance.is("GEOMETRIC_TOLERANCE");
    std::vector<StepRecord> systems =
        isComplex ? tolerance.as("GEOMETRIC_TOLERANCE_WITH_DATUM_REFERENCE").elements(0) : tolerance.elements(4);
    const auto precedence = [](const StepRecord& system) { return system.as("DATUM_REFERENCE")[0].number; };
    std::stable_sort(systems.begin(), systems.end(), [&](const StepRecord& left, const StepRecord& right) {
        return precedence(left) < precedence(right);
    });
    return systems;
}

// What both lines of a frame have.
struct Line
{
    double value = 0;
    Tolerance::EToleranceValueType zone = Tolerance::EToleranceValueType::None;
    std::array<double, 2> rateUnit = {0, 0};
    std::vector<EModifier> modifiers;
    std::shared_ptr<Tolerance::Frame> datums;
};

class LineReader
{
public:
    LineReader(const step_tolerances::DatumId& datumId, StepQuantity::EUnit unit)
        : m_datumId(datumId)
        , m_lengths(unit)
    {
    }

    Line read(const StepRecord& tolerance, std::size_t mostModifiers)
    {
        Line line;
        line.value = m_lengths.read(tolerance.as("GEOMETRIC_TOLERANCE").next(2));
        line.zone = zoneOf(tolerance);
        line.rateUnit = rateUnitOf(tolerance);
        line.modifiers = zoneModifiers(tolerance, mostModifiers);
        if (tolerance.is("GEOMETRIC_TOLERANCE_WITH_MAXIMUM_TOLERANCE"))
        {
            const StepRecord most = tolerance.as("GEOMETRIC_TOLERANCE_WITH_MAXIMUM_TOLERANCE").next(0);
            note(numberText(m_lengths.read(most), 0) + WIDE(" MAX"));
        }
        line.datums = datumsOf(tolerance);
        m_prefix = WIDE("LOWER LINE ");
        return line;
    }

    Lengths& lengths() { return m_lengths; }

    // What the lines have no place for.
    const mp::wstring& notes() const { return m_notes; }

private:
    Tolerance::EToleranceValueType zoneOf(const StepRecord& tolerance)
    {
        auto type = Tolerance::EToleranceValueType::None;
        for (const StepRecord& zone : tolerance.users("TOLERANCE_ZONE"))
        {
            const StepRecord form = zone.is("SHAPE_ASPECT") ? zone.as("TOLERANCE_ZONE").next(1) : zone.next(5);
            const std::string name = mp::toNarrow(form.text(0));
            type = name.find("spherical") != std::string::npos     ? Tolerance::EToleranceValueType::Spherical
                   : name.find("cylindrical") != std::string::npos ? Tolerance::EToleranceValueType::Diameter
                                                                   : type;
            m_lengths.miss(!form);
        }
        return type;
    }

    std::array<double, 2> rateUnitOf(const StepRecord& tolerance)
    {
        if (!tolerance.is("GEOMETRIC_TOLERANCE_WITH_DEFINED_UNIT"))
        {
            return {0, 0};
        }
        const double length = m_lengths.read(tolerance.as("GEOMETRIC_TOLERANCE_WITH_DEFINED_UNIT").next(0));
        const StepRecord area = tolerance.as("GEOMETRIC_TOLERANCE_WITH_DEFINED_AREA_UNIT");
        const bool hasOther = area[0].word == "RECTANGULAR" || area.next(1);
        return {length, hasOther ? m_lengths.read(area.next(1)) : length};
    }

    std::vector<EModifier> zoneModifiers(const StepRecord& tolerance, std::size_t most)
    {
        Modifiers modifiers;
        if (tolerance.is("GEOMETRIC_TOLERANCE_WITH_MODIFIERS"))
        {
            modifiers = modifiersOf(tolerance.as("GEOMETRIC_TOLERANCE_WITH_MODIFIERS"), 0, m_lengths, most);
        }
        const std::string& older = tolerance.as("MODIFIED_GEOMETRIC_TOLERANCE")[0].word;
        if (tolerance.is("MODIFIED_GEOMETRIC_TOLERANCE") && modifiers.known.size() < most)
        {
            modifiers.known.push_back(modifierOf(older));
        }
        for (const mp::wstring& words : modifiers.others)
        {
            note(words);
        }
        return modifiers.known;
    }

    std::shared_ptr<Tolerance::Frame> datumsOf(const StepRecord& tolerance)
    {
        const auto frame = std::make_shared<Tolerance::Frame>();
        for (const StepRecord& system : datumSystemsOf(tolerance))
        {
            if (system.is("DATUM_SYSTEM"))
            {
                frame->setLabel(system.as("SHAPE_ASPECT").text(0));
                const bool isComplex = system.is("SHAPE_ASPECT");
                for (const StepRecord& compartment :
                     isComplex ? system.as("DATUM_SYSTEM").elements(0) : system.elements(4))
                {
                    frame->addDatumRef(reference(compartment));
                }
            }
            else // (precedence, datum), in older files
            {
                const bool isComplex = system.is("DATUM_REFERENCE") && system.is("REFERENCED_MODIFIED_DATUM");
                const StepParameter& modifier = system.as("REFERENCED_MODIFIED_DATUM")[isComplex ? 0 : 2];
                Modifiers modifiers;
                if (modifierOf(modifier.word) != EModifier::NoModifier)
                {
                    modifiers.known.push_back(modifierOf(modifier.word));
                }
                Tolerance::DatumRef reference;
                addDatum(reference, system.as("DATUM_REFERENCE").next(1), modifiers);
                frame->addDatumRef(reference);
            }
        }
        return frame->datumRefs().empty() ? nullptr : frame;
    }

    Tolerance::DatumRef reference(const StepRecord& compartment)
    {
        Tolerance::DatumRef reference;
        const Modifiers modifiers = modifiersOf(compartment, 5, m_lengths);
        if (compartment[4].list.empty())
        {
            addDatum(reference, compartment.next(4), modifiers);
            return reference;
        }
        for (const StepRecord& element : compartment.elements(4)) // of a common datum
        {
            Modifiers own = modifiersOf(element, 5, m_lengths);
            own.known.insert(own.known.end(), modifiers.known.begin(), modifiers.known.end());
            addDatum(reference, element.next(4), own);
        }
        note(reference.label(), modifiers);
        return reference;
    }

    void addDatum(Tolerance::DatumRef& reference, const StepRecord& datum, const Modifiers& modifiers)
    {
        const bool isDatum = datum.is("DATUM");
        const mp::wstring label = isDatum ? step_datums::labelOf(datum) : kMissing;
        reference.setLabel(reference.label() + (reference.label().empty() ? WIDE("") : WIDE("-")) + label);
        Tolerance::ModifiedDatum modified;
        modified.setDatumId(isDatum ? m_datumId(datum) : mp::wstring());
        if (modifiers.known.empty())
        {
            reference.addModifiedDatum(modified);
        }
        for (const EModifier modifier : modifiers.known) // once for each
        {
            modified.setModifier(modifier);
            reference.addModifiedDatum(modified);
        }
        note(label, modifiers);
    }

    void note(const mp::wstring& label, const Modifiers& modifiers)
    {
        for (const mp::wstring& words : modifiers.others)
        {
            mp::wstring line = label;
            line += WIDE(' ');
            note(line += words);
        }
    }

    void note(const mp::wstring& words) { addLine(m_notes, m_prefix + words); }

    const step_tolerances::DatumId& m_datumId;
    Lengths m_lengths;
    mp::wstring m_prefix; // of the notes of a lower line
    mp::wstring m_notes;  // a line each
};

EModifier modifierAt(const Line& line, std::size_t position)
{
    return position < line.modifiers.size() ? line.modifiers[position] : EModifier::NoModifier;
}

} // namespace

namespace step_tolerances
{

std::vector<Frame> all(const StepRecords& records)
{
    std::map<int, Frame> frames; // by the id of the upper line
    for (const ToleranceTypeRow& row : tolerance_types::kAll)
    {
        for (const StepRecord& tolerance : records.all(row.record))
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
    for (const ToleranceTypeRow& row : tolerance_types::kAll)
    {
        if (frame.upper.is(row.record))
        {
            tolerance->setToleranceType(row.type);
        }
    }
    LineReader reader(datumId, quantityOf(frame.upper.as("GEOMETRIC_TOLERANCE").next(2)).unit);
    const Line upper = reader.read(frame.upper, 2);
    tolerance->setToleranceValue(upper.value);
    tolerance->setToleranceValueType(upper.zone);
    tolerance->setRateUnit(upper.rateUnit[0], upper.rateUnit[1]);
    tolerance->setZoneModifiers(modifierAt(upper, 0), modifierAt(upper, 1));
    tolerance->setReferenceFrame(upper.datums);
    if (frame.upper.is("UNEQUALLY_DISPOSED_GEOMETRIC_TOLERANCE"))
    {
        const StepRecord displacement = frame.upper.as("UNEQUALLY_DISPOSED_GEOMETRIC_TOLERANCE").next(0);
        tolerance->setShiftValue(reader.lengths().read(displacement) - upper.value / 2);
    }
    for (const StepRecord& zone : frame.upper.users("TOLERANCE_ZONE"))
    {
        for (const StepRecord& projected : zone.users("PROJECTED_ZONE_DEFINITION"))
        {
            tolerance->setProjectionToleranceZoneLength(reader.lengths().read(projected.next(3)));
        }
    }
    const StepRecord target = frame.upper.as("GEOMETRIC_TOLERANCE").next(3);
    tolerance->setAllAround(target.is("ALL_AROUND_SHAPE_ASPECT")    ? pmi_conventions::kAllAround
                            : target.is("PRODUCT_DEFINITION_SHAPE") ? pmi_conventions::kAllOver
                                                                    : 0);
    if (frame.lower)
    {
        const Line lower = reader.read(frame.lower, 1);
        tolerance->setComposite(true);
        tolerance->setCompositeToleranceValue(lower.value);
        tolerance->setCompositeToleranceValueType(lower.zone);
        tolerance->setCompositeRateUnits(lower.rateUnit[0], lower.rateUnit[1]);
        tolerance->setCompositeZoneModifier(modifierAt(lower, 0));
        tolerance->setCompositeReferenceFrame(lower.datums);
    }
    tolerance->setNote(reader.notes());
    tolerance->setName(reader.lengths().unitName());
    return tolerance;
}

} // namespace step_tolerances
