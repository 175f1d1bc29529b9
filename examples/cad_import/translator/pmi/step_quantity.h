#pragma once

#include "reading/step_records.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <vector>

/// A measure of a STEP file, as it states it.
struct StepQuantity
{
    mp::wstring name; // such as "nominal value"; empty for a plain measure
    double value = 0;
    vrx::ExcPMIDimension::EDimUnit unit = vrx::ExcPMIDimension::EDimUnit::None;
    double decimals = 0;                 // places behind the point; 0 when the file does not tell
    std::vector<mp::wstring> qualifiers; // such as "maximum"
};

/// As dimensions have it on the wire; empty for what is no unit of lengths.
mp::wstring lengthUnitName(vrx::ExcPMIDimension::EDimUnit unit);

/// Of a measure with a unit, which may be a representation item as well; a quantity without a unit for anything else.
StepQuantity quantityOf(const StepRecord& measure);
