#pragma once

#include "reading/step_records.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

/// The type of the annotation that presents a dimension, a tolerance or a datum of a STEP file; NOTE for any other
/// record.
vrx::ExcVisuNode::EType annotationType(const StepRecord& definition);

/// The type of the node that holds annotations of a type: DATUMS, DIMENSIONS, GEOMTOLS or NOTES.
vrx::ExcVisuNode::EType annotationGroup(vrx::ExcVisuNode::EType type);
