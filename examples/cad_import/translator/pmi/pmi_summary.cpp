#include "pmi/pmi_summary.h"

#include "host_channel.h"
#include "reading/cad_model.h"

#include <TDF_LabelSequence.hxx>
#include <XCAFDoc_DimTolTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ViewTool.hxx>

#include <string>

void sendPmiSummary(const CadModel& model, HostChannel& channel)
{
    const Handle(XCAFDoc_DimTolTool) tolerancing = XCAFDoc_DocumentTool::DimTolTool(model.document->Main());
    TDF_LabelSequence dimensions;
    TDF_LabelSequence tolerances;
    TDF_LabelSequence datums;
    TDF_LabelSequence views;
    tolerancing->GetDimensionLabels(dimensions);
    tolerancing->GetGeomToleranceLabels(tolerances);
    tolerancing->GetDatumLabels(datums);
    XCAFDoc_DocumentTool::ViewTool(model.document->Main())->GetViewLabels(views);
    if (dimensions.IsEmpty() && tolerances.IsEmpty() && datums.IsEmpty() && views.IsEmpty())
    {
        return;
    }
    channel.message("The file holds PMI: dimensions " + std::to_string(dimensions.Length()) + ", tolerances " +
                    std::to_string(tolerances.Length()) + ", datum uses " + std::to_string(datums.Length()) +
                    ", saved views " + std::to_string(views.Length()) + ".");
}
