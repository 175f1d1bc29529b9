#pragma once

#include "mp/wide.h"

#include <map>

class MechanicalData;
class ProductStructureBuilder;
class ShapeLinks;
struct CadModel;
struct DrawnPmi;

/// Adds the PMI of a model as data to the mechanical data of its blocks. Gives the ids of what its annotations present,
/// by their records.
std::map<int, mp::wstring> addPmi(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& blocks,
                                  ShapeLinks& links, const DrawnPmi& drawn);
