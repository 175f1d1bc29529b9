#include "pmi/pmi_summary.h"

#include "bridge/translator_channel.h"
#include "mp/narrow.h"
#include "pmi/step_datums.h"
#include "pmi/step_dimensions.h"
#include "pmi/step_tolerances.h"
#include "reading/cad_model.h"

#include <algorithm>
#include <string>

void sendPmiSummary(const CadModel& model, vrx::bridge::TranslatorChannel& channel)
{
    if (!model.records)
    {
        return;
    }
    const auto frames = step_tolerances::all(*model.records);
    const auto composite = std::count_if(frames.begin(), frames.end(),
                                         [](const step_tolerances::Frame& frame) { return bool(frame.lower); });
    const std::size_t dimensions = step_dimensions::all(*model.records).size();
    const std::size_t tolerances = frames.size() + static_cast<std::size_t>(composite);
    const std::size_t datums = step_datums::datums(*model.records).size();
    const std::size_t targets = step_datums::targets(*model.records).size();
    const std::size_t annotations = model.records->all("DRAUGHTING_CALLOUT").size();
    if (dimensions + tolerances + datums + targets + annotations > 0)
    {
        channel.message(mp::toWide("The file holds PMI: dimensions " + std::to_string(dimensions) + ", tolerances " +
                                   std::to_string(tolerances) + ", datums " + std::to_string(datums) +
                                   ", datum targets " + std::to_string(targets) + ", drawn annotations " +
                                   std::to_string(annotations) + "."));
    }
}
