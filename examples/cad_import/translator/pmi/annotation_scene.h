#pragma once

#include "mp/wide.h"
#include "pmi/product_places.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <TDF_Label.hxx>
#include <TDocStd_Document.hxx>
#include <gp_Ax2.hxx>

#include <memory>
#include <optional>

/// The id of an annotation wherever the model speaks of it: its place in the XDE document, such as "0:1:4:12".
mp::wstring annotationId(const TDF_Label& annotation);

/// The plane in which an annotation is drawn, if the file tells. It is read from the side to which its axis points.
std::optional<gp_Ax2> annotationPlane(const TDF_Label& annotation);

/// The drawn form of all annotations that have one: PMI, below it DATUMS, DIMENSIONS, GEOMTOLS and NOTES with a node
/// for each annotation. What is said of a part is drawn where the part first stands, if anywhere. Null when nothing is
/// drawn.
std::shared_ptr<vrx::ExcVisuNode> annotationScene(const Handle(TDocStd_Document) & document,
                                                  const ProductPlaces& places);
