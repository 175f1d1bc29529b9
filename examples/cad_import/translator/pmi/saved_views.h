#pragma once

#include "vrx_api/vrx_api_exchange_visualization.h"

#include <TDocStd_Document.hxx>

/// Adds the file's saved views to a scene: each as a view with its plane and annotations, and as a capture with its
/// camera.
void addSavedViews(vrx::ExcVisualizationData& scene, const Handle(TDocStd_Document) & document);
