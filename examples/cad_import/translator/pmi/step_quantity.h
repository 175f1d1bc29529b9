#pragma once

#include "reading/step_records.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <vector>

/// A length or an angle of a STEP file, as it states it. In a unit that dimensions do not have, such as micrometres, it
/// is converted to millimetres or degrees.
struct StepQuantity
{
    using EUnit = vrx::ExcPMIDimension::EDimUnit;

    mp::wstring name; // such as "nominal value"; empty for a plain measure
    double value = 0;
    EUnit unit = EUnit::None;            // none for what states no value
    double decimals = 0;                 // places behind the point; 0 when the file tells none, or that there are none
    std::vector<mp::wstring> qualifiers; // such as "maximum"

    explicit operator bool() const { return unit != EUnit::None; }

    /// In another unit; without a value when it is none of lengths for a length, or none of angles for an angle.
    StepQuantity in(EUnit other) const;
};

/// As dimensions have it on the wire; empty for what is no unit of lengths.
mp::wstring lengthUnitName(vrx::ExcPMIDimension::EDimUnit unit);

/// Of a measure with a unit, which may be a representation item as well; a quantity without a value for anything else.
StepQuantity quantityOf(const StepRecord& measure);

/// With this number of decimal places; with as many as there are when it is 0.
mp::wstring numberText(double number, double places);
