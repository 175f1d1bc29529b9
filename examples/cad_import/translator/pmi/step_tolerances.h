#pragma once

#include "reading/step_records.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <functional>
#include <memory>
#include <vector>

/// The geometric tolerances that a STEP file states.
namespace step_tolerances
{

/// A feature control frame of one line, or of two when it is composite.
struct Frame
{
    StepRecord upper;
    StepRecord lower; // none for a frame of one line
};

/// Each tolerance is in one frame. Of a composite one with more than two lines each further line is a frame of its own.
std::vector<Frame> all(const StepRecords& records);

/// The shape aspects that a tolerance is about: those of a dimension when it is about one. The shape of a product when
/// it is about all of that.
std::vector<StepRecord> aspects(const StepRecord& tolerance);

/// The ids of datums are given by the caller.
using DatumId = std::function<mp::wstring(const StepRecord& datum)>;

std::shared_ptr<vrx::ExcPMIGDT> make(const Frame& frame, const DatumId& datumId);

} // namespace step_tolerances
