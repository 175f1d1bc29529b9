#pragma once

#include "mechanical/shape_links.h"
#include "mp/wide.h"

#include <map>
#include <vector>

class MechanicalData;
class ProductStructureBuilder;
struct CadModel;
struct DrawnPmi;

/// The shapes that the model's layers hide.
std::vector<ShapeLinks::Link> hiddenOnLayers(const CadModel& model, ShapeLinks& links);

/// Adds the layers of a model to the mechanical data of the blocks. Of drawn annotations, which may be null, those
/// whose ids are given are on them too, and those that no layer shows are hidden in the entity data, unless
/// `showHidden`.
void addLayers(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& blocks, ShapeLinks& links,
               const DrawnPmi* drawn, const std::map<int, mp::wstring>& drawnIds, bool showHidden);
