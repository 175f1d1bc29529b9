#include "pmi/step_dimensions.h"

#include "mp/narrow.h"
#include "pmi/step_quantity.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <map>
#include <string>

namespace
{

using Dimension = vrx::ExcPMIDimension;

// The types of dimensions. What has several of them has all below its first one in common.
const char* const kLocations[] = {"ANGULAR_LOCATION", "DIMENSIONAL_LOCATION", "DIMENSIONAL_LOCATION_WITH_DATUM_FEATURE",
                                  "DIMENSIONAL_LOCATION_WITH_PATH", "DIRECTED_DIMENSIONAL_LOCATION"};
const char* const kSizes[] = {"ANGULAR_SIZE", "DIMENSIONAL_SIZE", "DIMENSIONAL_SIZE_WITH_DATUM_FEATURE",
                              "DIMENSIONAL_SIZE_WITH_PATH"};

template <class Types>
bool isAny(const StepRecord& record, const Types& types)
{
    return std::any_of(std::begin(types), std::end(types), [&](const char* type) { return record.is(type); });
}

bool isLocation(const StepRecord& dimension)
{
    return isAny(dimension, kLocations);
}

// Where the parameters of a dimension begin. One of a single type that is a datum feature too has those of a shape
// aspect first.
std::size_t firstOf(const StepRecord& dimension)
{
    const bool isFeature =
        dimension.is("DIMENSIONAL_LOCATION_WITH_DATUM_FEATURE") || dimension.is("DIMENSIONAL_SIZE_WITH_DATUM_FEATURE");
    return isFeature && !dimension.is("SHAPE_ASPECT") ? 4 : 0;
}

struct Kind
{
    const char* name = nullptr; // in the file; for those that begin so
    Dimension::ESubType type = Dimension::ESubType::NoDim;
    const mp::wchar* prefix = WIDE("");
};

const Kind kKinds[] = {
    {"spherical diameter", Dimension::ESubType::Diameter, WIDE("S\u2300")},
    {"spherical radius", Dimension::ESubType::Radius, WIDE("SR")},
    {"diameter", Dimension::ESubType::Diameter},
    {"radius", Dimension::ESubType::Radius},
    {"toroidal", Dimension::ESubType::Radius},
    {"curve length", Dimension::ESubType::LengthCurvilinear},
    {"curved distance", Dimension::ESubType::LengthCurvilinear},
    {"linear distance", Dimension::ESubType::Distance},
    {"thickness", Dimension::ESubType::Length},
    {"angle", Dimension::ESubType::Angle},
};

void setKind(Dimension& dimension, const StepRecord& record)
{
    const mp::wstring name = step_dimensions::nameOf(record);
    dimension.setName(name);
    if (record.is("ANGULAR_LOCATION") || record.is("ANGULAR_SIZE"))
    {
        dimension.setSubType(Dimension::ESubType::Angle);
        return;
    }
    dimension.setSubType(isLocation(record) ? Dimension::ESubType::Distance : Dimension::ESubType::Length);
    const std::string narrow = mp::toNarrow(name);
    const auto* const kind = std::find_if(std::begin(kKinds), std::end(kKinds), [&](const Kind& one) {
        return narrow.compare(0, std::strlen(one.name), one.name) == 0;
    });
    if (kind != std::end(kKinds))
    {
        const bool isDiameter = narrow.find("diameter") != std::string::npos;
        dimension.setSubType(isDiameter ? Dimension::ESubType::Diameter : kind->type);
        dimension.setPrefix(kind->prefix);
    }
}

struct Note
{
    const char* name; // in the file
    void (*apply)(Dimension& dimension);
};

void addAfter(Dimension& dimension, const mp::wchar* text)
{
    dimension.setAfter(dimension.after() + (dimension.after().empty() ? WIDE("") : WIDE(" ")) + text);
}

// Texts of dimensional notes and qualifiers (ISO 16792 and 14405 name the symbols).
const Note kNotes[] = {
    {"theoretical", [](Dimension& dimension) { dimension.setMainType(Dimension::EMainType::Basic); }},
    {"auxiliary", [](Dimension& dimension) { dimension.setMainType(Dimension::EMainType::Reference); }},
    {"square", [](Dimension& dimension) { dimension.setPrefix(WIDE("\u25A1")); }},
    {"controlled radius", [](Dimension& dimension) { dimension.setPrefix(WIDE("CR")); }},
    {"statistical", [](Dimension& dimension) { addAfter(dimension, WIDE("\u27E8ST\u27E9")); }},
    {"envelope requirement", [](Dimension& dimension) { addAfter(dimension, WIDE("\u24BA")); }},
    {"independency", [](Dimension& dimension) { addAfter(dimension, WIDE("\u24BE")); }},
    {"free-state condition", [](Dimension& dimension) { addAfter(dimension, WIDE("\u24BB")); }},
    {"maximum", [](Dimension& dimension) { addAfter(dimension, WIDE("MAX")); }},
    {"minimum", [](Dimension& dimension) { addAfter(dimension, WIDE("MIN")); }},
    {"average", [](Dimension& dimension) { addAfter(dimension, WIDE("AVG")); }},
};

void applyNote(Dimension& dimension, const mp::wstring& text)
{
    const std::string name = mp::toNarrow(text);
    const auto* const note =
        std::find_if(std::begin(kNotes), std::end(kNotes), [&](const Note& one) { return name == one.name; });
    if (note != std::end(kNotes))
    {
        note->apply(dimension);
    }
}

void setLimits(Dimension& dimension, const StepQuantity& lower, const StepQuantity& upper, bool hasValue)
{
    const double places = std::max(lower.decimals, upper.decimals);
    dimension.setFakeAlphanumericalValue(numberText(lower.value, places) + WIDE(" - ") +
                                         numberText(upper.value, places));
    dimension.setHasAlphanumericalValue(true);
    if (!hasValue)
    {
        dimension.setValue((lower.value + upper.value) / 2);
    }
    if (dimension.mainType() != Dimension::EMainType::Reference)
    {
        dimension.setMainType(Dimension::EMainType::Tolerance);
    }
    dimension.setNumericalToleranceLower(lower.value - dimension.value());
    dimension.setNumericalToleranceUpper(upper.value - dimension.value());
}

void setValues(Dimension& dimension, const StepRecord& representation)
{
    StepQuantity value;
    StepQuantity lower;
    StepQuantity upper;
    for (const StepRecord& item : representation.nexts(1))
    {
        if (item.is("DESCRIPTIVE_REPRESENTATION_ITEM") || item.is("COMPOUND_REPRESENTATION_ITEM"))
        {
            applyNote(dimension, item.text(1));
            for (const StepRecord& part : item.nexts(1))
            {
                applyNote(dimension, part.text(1));
            }
            continue;
        }
        const StepQuantity quantity = quantityOf(item);
        const std::string name = mp::toNarrow(quantity.name);
        StepQuantity& part = name == "upper limit" ? upper : name == "lower limit" ? lower : value;
        part = part ? part : quantity;
    }
    for (const mp::wstring& qualifier : value.qualifiers)
    {
        applyNote(dimension, qualifier);
    }
    const StepQuantity::EUnit unit = value ? value.unit : lower.unit;
    const bool hasLimits = lower.in(unit) && upper.in(unit);
    if (value || hasLimits)
    {
        dimension.setUnit(unit);
        dimension.setValue(value.value);
        dimension.setValuePrecision(std::max({value.decimals, lower.decimals, upper.decimals}));
    }
    if (hasLimits)
    {
        setLimits(dimension, lower.in(unit), upper.in(unit), bool(value));
    }
}

// By PLUS_MINUS_TOLERANCE: deviations or a fit.
void setTolerance(Dimension& dimension, const StepRecord& tolerance)
{
    const StepRecord range = tolerance.next(0);
    if (range.is("LIMITS_AND_FITS"))
    {
        const mp::wstring fit = range.text(0) + range.text(2);
        const bool isShaft = mp::toNarrow(range.text(1)) == "shaft" ||
                             (!range.text(0).empty() && range.text(0).front() >= 'a' && range.text(0).front() <= 'z');
        isShaft ? dimension.setAlphanumericalToleranceLower(fit) : dimension.setAlphanumericalToleranceUpper(fit);
        dimension.setMainType(Dimension::EMainType::Tolerance);
        return;
    }
    const StepQuantity lower = quantityOf(range.next(0)).in(dimension.unit());
    const StepQuantity upper = quantityOf(range.next(1)).in(dimension.unit());
    if (lower && upper)
    {
        dimension.setMainType(Dimension::EMainType::Tolerance);
        dimension.setNumericalToleranceLower(lower.value);
        dimension.setNumericalToleranceUpper(upper.value);
        dimension.setTolerancePrecisionValue(std::max(lower.decimals, upper.decimals));
    }
}

} // namespace

namespace step_dimensions
{

std::vector<StepRecord> all(const StepRecords& records)
{
    std::map<int, StepRecord> found; // each once, in the order of the file's numbers
    const auto add = [&](const char* type) {
        for (const StepRecord& dimension : records.all(type))
        {
            found.insert({dimension.id(), dimension});
        }
    };
    std::for_each(std::begin(kLocations), std::end(kLocations), add);
    std::for_each(std::begin(kSizes), std::end(kSizes), add);
    std::vector<StepRecord> dimensions;
    dimensions.reserve(found.size());
    for (const auto& [id, dimension] : found)
    {
        dimensions.push_back(dimension);
    }
    return dimensions;
}

bool isDimension(const StepRecord& record)
{
    return isLocation(record) || isAny(record, kSizes);
}

mp::wstring nameOf(const StepRecord& dimension)
{
    const std::size_t first = firstOf(dimension);
    return isLocation(dimension) ? dimension.as("SHAPE_ASPECT_RELATIONSHIP").text(first)
                                 : dimension.as("DIMENSIONAL_SIZE").text(first + 1);
}

std::vector<StepRecord> aspects(const StepRecord& dimension)
{
    const std::size_t first = firstOf(dimension);
    if (isLocation(dimension))
    {
        const StepRecord relationship = dimension.as("SHAPE_ASPECT_RELATIONSHIP");
        return {relationship.next(first + 2), relationship.next(first + 3)};
    }
    return {dimension.as("DIMENSIONAL_SIZE").next(first)};
}

std::shared_ptr<vrx::ExcPMIDimension> make(const StepRecord& record)
{
    auto dimension = std::make_shared<Dimension>();
    setKind(*dimension, record);
    for (const StepRecord& characteristic : record.users("DIMENSIONAL_CHARACTERISTIC_REPRESENTATION"))
    {
        setValues(*dimension, characteristic.next(1));
    }
    for (const StepRecord& tolerance : record.users("PLUS_MINUS_TOLERANCE"))
    {
        setTolerance(*dimension, tolerance);
    }
    return dimension;
}

} // namespace step_dimensions
