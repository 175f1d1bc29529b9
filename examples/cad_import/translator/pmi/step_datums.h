#pragma once

#include "reading/step_records.h"
#include "structure/model_frame.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <memory>
#include <vector>

/// The datums and datum targets that a STEP file states.
namespace step_datums
{

std::vector<StepRecord> datums(const StepRecords& records);
std::vector<StepRecord> targets(const StepRecords& records);

/// The datum features of a datum, or the targets on which it rests.
std::vector<StepRecord> features(const StepRecord& datum);

mp::wstring labelOf(const StepRecord& datum);

std::shared_ptr<vrx::ExcPMIDatumTarget> makeTarget(const StepRecord& record, const StepRecords& records,
                                                   const ModelFrame& frame);

} // namespace step_datums
