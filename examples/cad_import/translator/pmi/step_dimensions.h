#pragma once

#include "reading/step_records.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <memory>
#include <vector>

/// The dimensions that a STEP file states, each once: sizes, locations and angles, with their values, tolerances and
/// texts. Links, places and counts are left to the caller.
namespace step_dimensions
{

std::vector<StepRecord> all(const StepRecords& records);

bool isDimension(const StepRecord& record);

/// What the file calls it, such as "diameter".
mp::wstring nameOf(const StepRecord& dimension);

/// The shape aspects that a dimension is about: one for a size, the two ends for a location.
std::vector<StepRecord> aspects(const StepRecord& dimension);

std::shared_ptr<vrx::ExcPMIDimension> make(const StepRecord& record);

} // namespace step_dimensions
