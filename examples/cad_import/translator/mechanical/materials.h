#pragma once

#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <cstdint>
#include <memory>
#include <vector>

class MechanicalData;
class ProductStructureBuilder;
class ShapeLinks;
struct CadModel;

/// The material that a STEP file gives a part, or some of its solids.
struct StatedMaterial
{
    std::uint64_t block = 0; // of the part; 0 when that is no block of its own
    int product = 0;         // its product definition
    std::vector<int> solids; // the items of the geometry; empty for the part as a whole
    std::shared_ptr<vrx::ExcMiscMaterial> material;
    bool ofAllSolids = true;
};

/// In the order of the file.
std::vector<StatedMaterial> statedMaterials(const CadModel& model, const ProductStructureBuilder& blocks);

void addMaterials(MechanicalData& data, const std::vector<StatedMaterial>& materials, ShapeLinks& links);
