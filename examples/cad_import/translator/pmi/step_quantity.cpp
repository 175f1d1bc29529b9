#include "pmi/step_quantity.h"

#include "mp/narrow.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <iterator>
#include <locale>
#include <sstream>
#include <string>
#include <utility>

namespace
{

using EDimUnit = vrx::ExcPMIDimension::EDimUnit;

const double kRightAngle = 1.5707963267948966; // radians

// What a unit stands for: millimetres or radians.
struct Scale
{
    double factor = 0; // 0 for any other unit
    bool isAngle = false;
};

struct Unit
{
    EDimUnit unit = EDimUnit::None;
    Scale scale;
    const mp::wchar* lengthName = nullptr;
};

const Unit kUnits[] = {
    {EDimUnit::Mm, {1, false}, WIDE("mm")},
    {EDimUnit::Cm, {10, false}, WIDE("cm")},
    {EDimUnit::Meter, {1e3, false}, WIDE("meter")},
    {EDimUnit::Km, {1e6, false}, WIDE("km")},
    {EDimUnit::Inch, {25.4, false}, WIDE("inch")},
    {EDimUnit::Foot, {304.8, false}, WIDE("foot")},
    {EDimUnit::Degree, {kRightAngle / 90, true}, WIDE("")},
    {EDimUnit::Minute, {kRightAngle / 90 / 60, true}, WIDE("")},
    {EDimUnit::Second, {kRightAngle / 90 / 3600, true}, WIDE("")},
    {EDimUnit::Grade, {kRightAngle / 100, true}, WIDE("")},
    {EDimUnit::Radian, {1, true}, WIDE("")},
};

const std::pair<const char*, double> kPrefixes[] = {
    {"", 1},         {"EXA", 1e18},  {"PETA", 1e15},  {"TERA", 1e12},   {"GIGA", 1e9},   {"MEGA", 1e6},
    {"KILO", 1e3},   {"HECTO", 1e2}, {"DECA", 1e1},   {"DECI", 1e-1},   {"CENTI", 1e-2}, {"MILLI", 1e-3},
    {"MICRO", 1e-6}, {"NANO", 1e-9}, {"PICO", 1e-12}, {"FEMTO", 1e-15}, {"ATTO", 1e-18},
};

// Units stand for a number of others, such as a foot for twelve inches.
Scale scaleOf(StepRecord unit)
{
    const int kMostSteps = 4;
    Scale scale{1, false};
    for (int step = 0; step < kMostSteps && unit.is("CONVERSION_BASED_UNIT"); ++step)
    {
        const StepRecord measure = unit.as("CONVERSION_BASED_UNIT").next(1).as("MEASURE_WITH_UNIT");
        scale.factor *= measure[0].number;
        unit = measure.next(1);
    }
    const StepRecord si = unit.as("SI_UNIT");
    scale.isAngle = si[1].word == "RADIAN";
    const auto* const prefix = std::find_if(std::begin(kPrefixes), std::end(kPrefixes),
                                            [&si](const auto& one) { return si[0].word == one.first; });
    const bool isKnown =
        unit.is("SI_UNIT") && (scale.isAngle || si[1].word == "METRE") && prefix != std::end(kPrefixes);
    scale.factor *= isKnown ? prefix->second * (scale.isAngle ? 1 : 1e3) : 0;
    return scale;
}

// The unit of dimensions that stands for as much; files round their factors.
EDimUnit unitOf(const Scale& scale)
{
    const auto* const found = std::find_if(std::begin(kUnits), std::end(kUnits), [&scale](const Unit& one) {
        return one.scale.isAngle == scale.isAngle && std::abs(scale.factor / one.scale.factor - 1) < 1e-3;
    });
    return found != std::end(kUnits) ? found->unit : EDimUnit::None;
}

// Only of a unit that is in the table.
const Unit& rowOf(EDimUnit unit)
{
    return *std::find_if(std::begin(kUnits), std::end(kUnits), [unit](const Unit& one) { return one.unit == unit; });
}

void setValue(StepQuantity& quantity, double number, const Scale& scale)
{
    const double converted = number * scale.factor;
    if (!(scale.factor > 0) || !std::isfinite(converted))
    {
        return;
    }
    quantity.unit = unitOf(scale);
    quantity.value = number;
    if (!quantity)
    {
        quantity.unit = scale.isAngle ? EDimUnit::Degree : EDimUnit::Mm;
        quantity.value = converted / rowOf(quantity.unit).scale.factor;
        quantity.decimals = 0;
    }
}

// "NR2 1.3" is a number with one place before the point and three behind it (ISO 6093, ISO 10303-45).
double decimalsOf(const mp::wstring& format)
{
    const std::string text = mp::toNarrow(format);
    const std::size_t point = text.find('.');
    const std::size_t count =
        point == std::string::npos ? 0 : text.find_first_not_of("0123456789", point + 1) - point - 1;
    return count == 0 || point + 1 >= text.size() ? 0 : std::atof(text.c_str() + point + 1);
}

void addQualifier(StepQuantity& quantity, const StepRecord& qualifier)
{
    if (qualifier.is("VALUE_FORMAT_TYPE_QUALIFIER"))
    {
        quantity.decimals = decimalsOf(qualifier.text(0));
    }
    else if (qualifier.is("TYPE_QUALIFIER"))
    {
        quantity.qualifiers.push_back(qualifier.text(0));
    }
}

} // namespace

StepQuantity StepQuantity::in(EUnit other) const
{
    if (other == unit)
    {
        return *this;
    }
    const bool isSame = *this && other != EUnit::None && rowOf(unit).scale.isAngle == rowOf(other).scale.isAngle;
    StepQuantity result;
    result.name = name;
    result.unit = isSame ? other : EUnit::None;
    result.value = isSame ? value * rowOf(unit).scale.factor / rowOf(other).scale.factor : 0;
    result.qualifiers = qualifiers;
    return result;
}

mp::wstring lengthUnitName(EDimUnit unit)
{
    return unit != EDimUnit::None ? rowOf(unit).lengthName : WIDE("");
}

StepQuantity quantityOf(const StepRecord& measure)
{
    StepQuantity quantity;
    const bool isPlainItem = measure.is("MEASURE_REPRESENTATION_ITEM") && !measure.is("MEASURE_WITH_UNIT");
    const StepRecord value = measure.as(isPlainItem ? "MEASURE_REPRESENTATION_ITEM" : "MEASURE_WITH_UNIT");
    quantity.name = isPlainItem                         ? value.text(0)
                    : measure.is("REPRESENTATION_ITEM") ? measure.as("REPRESENTATION_ITEM").text(0)
                                                        : mp::wstring();
    if (measure.is("QUALIFIED_REPRESENTATION_ITEM"))
    {
        for (const StepRecord& qualifier : measure.as("QUALIFIED_REPRESENTATION_ITEM").nexts(0))
        {
            addQualifier(quantity, qualifier);
        }
    }
    for (const StepRecord& qualification : measure.users("MEASURE_QUALIFICATION"))
    {
        for (const StepRecord& qualifier : qualification.nexts(3))
        {
            addQualifier(quantity, qualifier);
        }
    }
    setValue(quantity, value[isPlainItem ? 1 : 0].number, scaleOf(value.next(isPlainItem ? 2 : 1)));
    return quantity;
}

mp::wstring numberText(double number, double places)
{
    const int kFinest = 9;
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::fixed
           << std::setprecision(places > 0 ? static_cast<int>(std::min<double>(places, kFinest)) : kFinest) << number;
    std::string text = stream.str();
    if (!(places > 0))
    {
        text.erase(text.find_last_not_of('0') + 1);
        text.erase(text.find_last_not_of('.') + 1);
    }
    return mp::toWide(text);
}
