#pragma once

#include "mp/narrow.h"
#include "number_text.h"

#include <string>

/// A mass in kilograms with four digits, in grams, kilograms or tonnes.
inline std::string massText(double mass)
{
    const auto text = [](double value, const char* unit) { return mp::toNarrow(roundedText(value, 4)) + unit; };
    if (mass < 1)
    {
        return text(mass * 1000, " g");
    }
    return mass < 1000 ? text(mass, " kg") : text(mass / 1000, " t");
}
