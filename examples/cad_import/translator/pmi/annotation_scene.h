#pragma once

#include "mp/wide.h"
#include "pmi/drawn_annotations.h"
#include "pmi/product_places.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <map>
#include <memory>
#include <vector>

/// The id of an annotation wherever the scene speaks of it: "a" and the id of its record in the file.
mp::wstring annotationId(int record);

/// The drawn form of all annotations that have one: PMI, below it DATUMS, DIMENSIONS, GEOMTOLS and NOTES with a node
/// for each annotation. What is said of a part is drawn where the part first stands, if anywhere. Null when nothing is
/// drawn. The mechanical ids are by the annotations' records.
std::shared_ptr<vrx::ExcVisuNode> annotationScene(const std::vector<DrawnAnnotation>& annotations,
                                                  const ProductPlaces& places,
                                                  const std::map<int, mp::wstring>& mechanicalIds);
