#pragma once

#include "structure/model_frame.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

/// Brings a block's scene, made in the document's lengths, into the frame in which the model is sent.
void scaleScene(const vrx::ExcVisualizationData& scene, const ModelFrame& frame);

/// The same for the scene of the product as a whole, which also turns with it.
void placeScene(const vrx::ExcVisualizationData& scene, const ModelFrame& frame);
