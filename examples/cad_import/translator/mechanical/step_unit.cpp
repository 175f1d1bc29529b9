#include "mechanical/step_unit.h"

#include "mp/narrow.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace
{

using vrx::ELengthUnitType;
using vrx::EMassUnitType;
using vrx::ETemperatureUnitType;
using vrx::ETimeUnitType;

const int kDeepest = 6;      // units that stand for units
const int kMost = 64;        // units that a unit stands for
const double kHighest = 9.0; // exponent

enum EBase
{
    Mass,
    Length,
    Time,
    Temperature,
    BaseCount
};

struct BaseUnit
{
    const char* name; // in lower case; of the SI with its prefix
    EBase base;
    std::int32_t type; // the value of the enumeration of its base
    double size;       // in kilograms, metres, seconds and kelvins
};

template <class Type>
constexpr BaseUnit unit(const char* name, EBase base, Type type, double size)
{
    return {name, base, static_cast<std::int32_t>(type), size};
}

const BaseUnit kSi[] = {
    unit("kilo gram", Mass, EMassUnitType::Kilogram, 1),
    unit(" metre", Length, ELengthUnitType::Meter, 1),
    unit(" second", Time, ETimeUnitType::Second, 1),
    unit(" kelvin", Temperature, ETemperatureUnitType::Kelvin, 1),
    unit(" gram", Mass, EMassUnitType::Gram, 1e-3),
    unit("deci gram", Mass, EMassUnitType::Decigram, 1e-4),
    unit("centi gram", Mass, EMassUnitType::Centigram, 1e-5),
    unit("mega gram", Mass, EMassUnitType::Tonne, 1e3),
    unit("nano metre", Length, ELengthUnitType::Nanometer, 1e-9),
    unit("micro metre", Length, ELengthUnitType::Micrometer, 1e-6),
    unit("milli metre", Length, ELengthUnitType::Millimeter, 1e-3),
    unit("centi metre", Length, ELengthUnitType::Centimeter, 1e-2),
    unit("deci metre", Length, ELengthUnitType::Decimeter, 1e-1),
    unit("kilo metre", Length, ELengthUnitType::Kilometer, 1e3),
    unit("nano second", Time, ETimeUnitType::Nanosecond, 1e-9),
    unit("micro second", Time, ETimeUnitType::Microsecond, 1e-6),
    unit("milli second", Time, ETimeUnitType::Millisecond, 1e-3),
    unit(" degree celsius", Temperature, ETemperatureUnitType::Celsius, 1),
};

const BaseUnit& kKilogram = kSi[0];
const BaseUnit& kMetre = kSi[1];
const BaseUnit& kSecond = kSi[2];

const BaseUnit kConverted[] = {
    unit("inch", Length, ELengthUnitType::Inch, 0.0254),
    unit("inches", Length, ELengthUnitType::Inch, 0.0254),
    unit("in", Length, ELengthUnitType::Inch, 0.0254),
    unit("foot", Length, ELengthUnitType::Foot, 0.3048),
    unit("feet", Length, ELengthUnitType::Foot, 0.3048),
    unit("ft", Length, ELengthUnitType::Foot, 0.3048),
    unit("mile", Length, ELengthUnitType::Mile, 1609.344),
    unit("mil", Length, ELengthUnitType::Milliinch, 2.54e-5),
    unit("milliinch", Length, ELengthUnitType::Milliinch, 2.54e-5),
    unit("microinch", Length, ELengthUnitType::Microinch, 2.54e-8),
    unit("pound", Mass, EMassUnitType::PoindMass, 0.45359237),
    unit("pound mass", Mass, EMassUnitType::PoindMass, 0.45359237),
    unit("lb", Mass, EMassUnitType::PoindMass, 0.45359237),
    unit("lbm", Mass, EMassUnitType::PoindMass, 0.45359237),
    unit("tonne", Mass, EMassUnitType::Tonne, 1e3),
    unit("slug", Mass, EMassUnitType::Slug, 14.59390293720636),
    unit("minute", Time, ETimeUnitType::Minute, 60),
    unit("hour", Time, ETimeUnitType::Hour, 3600),
    unit("day", Time, ETimeUnitType::Day, 86400),
    unit("fahrenheit", Temperature, ETemperatureUnitType::Fahrenheit, 5.0 / 9),
    unit("degree fahrenheit", Temperature, ETemperatureUnitType::Fahrenheit, 5.0 / 9),
};

// What a unit must be besides its name: a minute may be one of angle, a pound one of force.
const char* const kKinds[] = {"MASS_UNIT", "LENGTH_UNIT", "TIME_UNIT", "THERMODYNAMIC_TEMPERATURE_UNIT"};

struct CompoundUnit
{
    const char* name;
    int mass;
    int length;
    int time;
};

const CompoundUnit kCompound[] = {{"newton", 1, 1, -2},  {"pascal", 1, -1, -2}, {"joule", 1, 2, -2},
                                  {"watt", 1, 2, -3},    {"hertz", 0, 0, -1},   {"radian", 0, 0, 0},
                                  {"steradian", 0, 0, 0}};

struct Prefix
{
    const char* name;
    double factor;
};

const Prefix kPrefixes[] = {{"", 1},          {"exa", 1e18},   {"peta", 1e15},  {"tera", 1e12}, {"giga", 1e9},
                            {"mega", 1e6},    {"kilo", 1e3},   {"hecto", 1e2},  {"deca", 1e1},  {"deci", 1e-1},
                            {"centi", 1e-2},  {"milli", 1e-3}, {"micro", 1e-6}, {"nano", 1e-9}, {"pico", 1e-12},
                            {"femto", 1e-15}, {"atto", 1e-18}};

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter == '_' ? ' ' : letter;
    });
    return text;
}

template <class Table>
auto find(const Table& table, std::string_view name)
{
    const auto found =
        std::find_if(std::begin(table), std::end(table), [name](const auto& one) { return name == one.name; });
    return found != std::end(table) ? &*found : nullptr;
}

// A number and a unit, while they are put together.
class Compound
{
public:
    explicit Compound(double value)
        : m_value(value)
    {
    }

    // False for a unit that is not known.
    bool multiply(const StepRecord& unit, int exponent = 1, int depth = 0)
    {
        if (m_left == 0)
        {
            return false;
        }
        --m_left;
        if (unit.is("CONVERSION_BASED_UNIT"))
        {
            return multiplyConverted(unit, exponent, depth);
        }
        if (unit.is("SI_UNIT"))
        {
            return multiplySi(unit.as("SI_UNIT"), exponent);
        }
        return unit.is("RATIO_UNIT") || (depth < kDeepest && multiplyElements(unit, exponent, depth));
    }

    std::optional<vrx::ExcMiscMaterialProperty> property() const
    {
        if (!std::isfinite(m_value))
        {
            return std::nullopt;
        }
        vrx::ExcMiscMaterialProperty property;
        property.setValue(m_value);
        vrx::ExcMiscMaterialProperty::Unit& unit = property.unit();
        set<EMassUnitType>(Mass, [&](auto type, int exponent) { unit.setMass(type, exponent); });
        set<ELengthUnitType>(Length, [&](auto type, int exponent) { unit.setLength(type, exponent); });
        set<ETimeUnitType>(Time, [&](auto type, int exponent) { unit.setTime(type, exponent); });
        set<ETemperatureUnitType>(Temperature, [&](auto type, int exponent) { unit.setTemperature(type, exponent); });
        return property;
    }

private:
    struct Power
    {
        const BaseUnit* unit = nullptr;
        int exponent = 0;
    };

    // The first unit of a base holds for all of them.
    void multiply(const BaseUnit& unit, int exponent)
    {
        Power& power = m_powers[static_cast<std::size_t>(unit.base)];
        power.unit = power.unit != nullptr ? power.unit : &unit;
        power.exponent += exponent;
        m_value *= std::pow(unit.size / power.unit->size, exponent);
    }

    bool multiplyConverted(const StepRecord& record, int exponent, int depth)
    {
        const StepRecord converted = record.as("CONVERSION_BASED_UNIT");
        const BaseUnit* const known = find(kConverted, lower(mp::toNarrow(converted.text(0))));
        if (known != nullptr && record.is(kKinds[known->base]))
        {
            multiply(*known, exponent);
            return true;
        }
        const StepRecord measure = converted.next(1).as("MEASURE_WITH_UNIT");
        m_value *= std::pow(measure[0].number, exponent);
        return measure[0].number > 0 && depth < kDeepest && multiply(measure.next(1), exponent, depth + 1);
    }

    bool multiplySi(const StepRecord& si, int exponent)
    {
        const std::string prefix = lower(si[0].word);
        const std::string name = lower(si[1].word);
        if (const BaseUnit* const known = find(kSi, prefix + ' ' + name))
        {
            multiply(*known, exponent);
            return true;
        }
        const Prefix* const times = find(kPrefixes, prefix);
        const BaseUnit* const plain = find(kSi, ' ' + name);
        const CompoundUnit* const compound = find(kCompound, name);
        if (times == nullptr || (plain == nullptr && compound == nullptr))
        {
            return false;
        }
        m_value *= std::pow(times->factor, exponent);
        if (plain != nullptr)
        {
            multiply(*plain, exponent);
            return true;
        }
        multiply(kKilogram, compound->mass * exponent);
        multiply(kMetre, compound->length * exponent);
        multiply(kSecond, compound->time * exponent);
        return true;
    }

    bool multiplyElements(const StepRecord& unit, int exponent, int depth)
    {
        const std::vector<StepRecord> elements = unit.as("DERIVED_UNIT").nexts(0);
        return !elements.empty() && std::all_of(elements.begin(), elements.end(), [&](const StepRecord& element) {
            const double power = element[1].number;
            return element.is("DERIVED_UNIT_ELEMENT") && std::abs(power) <= kHighest && power == std::round(power) &&
                   multiply(element.next(0), exponent * static_cast<int>(power), depth + 1);
        });
    }

    template <class Type, class Set>
    void set(EBase base, const Set& set) const
    {
        const Power& power = m_powers[static_cast<std::size_t>(base)];
        if (power.exponent != 0)
        {
            set(static_cast<Type>(power.unit->type), power.exponent);
        }
    }

    double m_value;
    int m_left = kMost;
    std::array<Power, BaseCount> m_powers;
};

} // namespace

std::optional<vrx::ExcMiscMaterialProperty> propertyOf(const StepRecord& measure)
{
    if (measure.is("VALUE_REPRESENTATION_ITEM"))
    {
        return Compound(measure.as("VALUE_REPRESENTATION_ITEM")[1].number).property();
    }
    const bool isPlainItem = measure.is("MEASURE_REPRESENTATION_ITEM") && !measure.is("MEASURE_WITH_UNIT");
    const StepRecord value = measure.as(isPlainItem ? "MEASURE_REPRESENTATION_ITEM" : "MEASURE_WITH_UNIT");
    if (!isPlainItem && !measure.is("MEASURE_WITH_UNIT"))
    {
        return std::nullopt;
    }
    Compound compound(value[isPlainItem ? 1 : 0].number);
    const StepRecord unit = value.next(isPlainItem ? 2 : 1);
    return !unit || compound.multiply(unit) ? compound.property() : std::nullopt;
}
