#include "pmi/step_quantity.h"

#include "mp/narrow.h"

#include <algorithm>
#include <string>

namespace
{

using EDimUnit = vrx::ExcPMIDimension::EDimUnit;

struct Unit
{
    const char* name; // in lower case
    EDimUnit unit;
};

const Unit kConverted[] = {
    {"inch", EDimUnit::Inch},      {"foot", EDimUnit::Foot},     {"degree", EDimUnit::Degree},
    {"degrees", EDimUnit::Degree}, {"gradian", EDimUnit::Grade}, {"grad", EDimUnit::Grade},
    {"minute", EDimUnit::Minute},  {"second", EDimUnit::Second},
};

// Of the SI, with their prefix.
const Unit kSi[] = {
    {"milli metre", EDimUnit::Mm}, {"centi metre", EDimUnit::Cm}, {"kilo metre", EDimUnit::Km},
    {" metre", EDimUnit::Meter},   {" radian", EDimUnit::Radian},
};

template <std::size_t Count>
EDimUnit find(const Unit (&units)[Count], std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    const Unit* const found = std::find_if(units, units + Count, [&name](const Unit& one) { return name == one.name; });
    return found != units + Count ? found->unit : EDimUnit::None;
}

EDimUnit unitOf(const StepRecord& unit)
{
    return unit.is("CONVERSION_BASED_UNIT") ? find(kConverted, mp::toNarrow(unit.as("CONVERSION_BASED_UNIT").text(0)))
                                            : find(kSi, unit.as("SI_UNIT")[0].word + ' ' + unit.as("SI_UNIT")[1].word);
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

mp::wstring lengthUnitName(EDimUnit unit)
{
    switch (unit)
    {
    case EDimUnit::Mm:
        return WIDE("mm");
    case EDimUnit::Cm:
        return WIDE("cm");
    case EDimUnit::Meter:
        return WIDE("meter");
    case EDimUnit::Km:
        return WIDE("km");
    case EDimUnit::Inch:
        return WIDE("inch");
    case EDimUnit::Foot:
        return WIDE("foot");
    default:
        return {};
    }
}

StepQuantity quantityOf(const StepRecord& measure)
{
    StepQuantity quantity;
    const bool isPlainItem = measure.is("MEASURE_REPRESENTATION_ITEM") && !measure.is("MEASURE_WITH_UNIT");
    const StepRecord value = measure.as(isPlainItem ? "MEASURE_REPRESENTATION_ITEM" : "MEASURE_WITH_UNIT");
    quantity.value = value[isPlainItem ? 1 : 0].number;
    quantity.unit = unitOf(value.next(isPlainItem ? 2 : 1));
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
    return quantity;
}
