#pragma once

#include "reading/step_records.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <optional>

/// A measure of a STEP file, a representation item or any other, with its unit as a product of powers of base units. A
/// unit without a base unit of its own becomes those that it stands for, with their factor on the value. Nothing for
/// what is no measure, a number that is not finite, or a unit that is not known.
std::optional<vrx::ExcMiscMaterialProperty> propertyOf(const StepRecord& measure);
