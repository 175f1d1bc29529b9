#pragma once

#include "mechanical/shape_links.h"

#include <vector>

class MechanicalData;
class ModelFrame;
struct CadModel;

/// Adds what the model says of single faces and edges beside their shape to the mechanical data of the blocks: the
/// names that the file gives them, whether they are hidden, and the lines that they are drawn with. `hidden` is what
/// layers hide, which may be other entities too. With `showHidden` nothing else is hidden.
void addEntityInformation(MechanicalData& data, const CadModel& model, const ModelFrame& frame, ShapeLinks& links,
                          const std::vector<ShapeLinks::Link>& hidden, bool showHidden);
