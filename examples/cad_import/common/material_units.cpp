#include "common/material_units.h"

#include "mp/narrow.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

namespace units
{

namespace
{

using vrx::ELengthUnitType;
using vrx::EMassUnitType;
using vrx::ETemperatureUnitType;
using vrx::ETimeUnitType;

template <class Unit>
struct Row
{
    Unit unit;
    const char* symbol;
    double perBase; // how many are a meter or a kilogram
};

const double kFoot = 0.3048;
const double kPound = 0.45359237;
const double kPoundForce = kPound * 9.80665; // in newtons

const Row<ELengthUnitType> kLengths[] = {
    {ELengthUnitType::Nanometer, "nm", 1e9},           {ELengthUnitType::Micrometer, "µm", 1e6},
    {ELengthUnitType::Millimeter, "mm", 1e3},          {ELengthUnitType::Centimeter, "cm", 1e2},
    {ELengthUnitType::Decimeter, "dm", 1e1},           {ELengthUnitType::Meter, "m", 1},
    {ELengthUnitType::Inch, "in", 12 / kFoot},         {ELengthUnitType::Foot, "ft", 1 / kFoot},
    {ELengthUnitType::Mile, "mi", 1 / (5280 * kFoot)}, {ELengthUnitType::Kilometer, "km", 1e-3},
    {ELengthUnitType::Milliinch, "mil", 12e3 / kFoot}, {ELengthUnitType::Microinch, "µin", 12e6 / kFoot},
};

const Row<EMassUnitType> kMasses[] = {
    {EMassUnitType::Centigram, "cg", 1e5},
    {EMassUnitType::Decigram, "dg", 1e4},
    {EMassUnitType::Gram, "g", 1e3},
    {EMassUnitType::Kilogram, "kg", 1},
    {EMassUnitType::PoindMass, "lb", 1 / kPound},
    {EMassUnitType::Tonne, "t", 1e-3},
    {EMassUnitType::Slug, "slug", kFoot / kPoundForce},
    {EMassUnitType::Lbfsec2In, "slinch", kFoot / 12 / kPoundForce},
};

const Row<ETimeUnitType> kTimes[] = {
    {ETimeUnitType::Nanosecond, "ns", 0}, {ETimeUnitType::Microsecond, "µs", 0}, {ETimeUnitType::Millisecond, "ms", 0},
    {ETimeUnitType::Second, "s", 0},      {ETimeUnitType::Minute, "min", 0},     {ETimeUnitType::Hour, "h", 0},
    {ETimeUnitType::Day, "d", 0},
};

const Row<ETemperatureUnitType> kTemperatures[] = {
    {ETemperatureUnitType::Fahrenheit, "°F", 0},
    {ETemperatureUnitType::Celsius, "°C", 0},
    {ETemperatureUnitType::Kelvin, "K", 0},
};

template <class Unit, std::size_t Count>
const Row<Unit>* find(const Row<Unit> (&rows)[Count], Unit unit)
{
    const Row<Unit>* const found =
        std::find_if(rows, rows + Count, [unit](const Row<Unit>& row) { return row.unit == unit; });
    return found != rows + Count ? found : nullptr;
}

ELengthUnitType known(ELengthUnitType unit, ELengthUnitType product)
{
    return unit == ELengthUnitType::ModelUnit ? product : unit;
}

template <class Factor>
bool isNone(const Factor& factor)
{
    return !factor || factor->dimension() == 0;
}

// The factors above and below the line of a fraction.
class Fraction
{
public:
    template <class Unit, std::size_t Count>
    void add(const Row<Unit> (&rows)[Count], Unit unit, std::int32_t dimension)
    {
        if (dimension == 0)
        {
            return;
        }
        const Row<Unit>* const row = find(rows, unit);
        std::string text = row != nullptr ? row->symbol : "?";
        const std::int64_t exponent = std::abs(std::int64_t{dimension});
        if (exponent != 1)
        {
            text += std::to_string(exponent);
        }
        std::string& side = dimension > 0 ? m_above : m_below;
        m_manyBelow = m_manyBelow || (dimension < 0 && !m_below.empty());
        side += (side.empty() ? "" : " ") + text;
    }

    std::string text() const
    {
        if (m_below.empty())
        {
            return m_above;
        }
        return (m_above.empty() ? "1" : m_above) + '/' + (m_manyBelow ? '(' + m_below + ')' : m_below);
    }

private:
    std::string m_above;
    std::string m_below;
    bool m_manyBelow = false;
};

} // namespace

std::optional<double> perMeter(ELengthUnitType unit)
{
    const Row<ELengthUnitType>* const row = find(kLengths, unit);
    return row != nullptr ? std::optional<double>(row->perBase) : std::nullopt;
}

std::optional<double> density(const vrx::ExcMiscMaterialProperty& property, ELengthUnitType product)
{
    const vrx::ExcMiscMaterialProperty::Unit& unit = property.unit();
    const bool isDensity = unit.mass && unit.mass->dimension() == 1 && unit.length && unit.length->dimension() == -3 &&
                           isNone(unit.time) && isNone(unit.temperature);
    if (!isDensity)
    {
        return std::nullopt;
    }
    const Row<EMassUnitType>* const mass = find(kMasses, unit.mass->units());
    const std::optional<double> length = perMeter(known(unit.length->units(), product));
    if (mass == nullptr || !length)
    {
        return std::nullopt;
    }
    const double value = property.value() * (*length * *length * *length) / mass->perBase;
    return std::isfinite(value) && value > 0 ? std::optional<double>(value) : std::nullopt;
}

mp::wstring text(const vrx::ExcMiscMaterialProperty::Unit& unit, ELengthUnitType product)
{
    Fraction fraction;
    if (unit.mass)
    {
        fraction.add(kMasses, unit.mass->units(), unit.mass->dimension());
    }
    if (unit.length)
    {
        fraction.add(kLengths, known(unit.length->units(), product), unit.length->dimension());
    }
    if (unit.time)
    {
        fraction.add(kTimes, unit.time->units(), unit.time->dimension());
    }
    if (unit.temperature)
    {
        fraction.add(kTemperatures, unit.temperature->units(), unit.temperature->dimension());
    }
    return mp::toWide(fraction.text());
}

} // namespace units
