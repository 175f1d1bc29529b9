#pragma once

#include "mp/wide.h"
#include "pmi/drawn_pmi.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <map>
#include <memory>
#include <vector>

class BlockBodies;
class ProductStructureBuilder;
struct CadModel;

/// The PMI of a model as data.
struct MechanicalPmi
{
    std::shared_ptr<vrx::ExcRootMechanicalData> root; // null when nothing belongs to the product as a whole
    std::vector<std::shared_ptr<vrx::ExcBlockMechanicalData>> blocks;
    std::map<int, mp::wstring> ids; // of what annotations present, by their records
};

/// Of a model whose PMI was kept.
MechanicalPmi mechanicalPmi(const CadModel& model, const ProductStructureBuilder& blocks, const BlockBodies& bodies,
                            const DrawnPmi& drawn);
