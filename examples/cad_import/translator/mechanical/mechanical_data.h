#pragma once

#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <cstdint>
#include <map>
#include <memory>

/// The mechanical data of an import while it is put together, block by block, and that of the product as a whole, which
/// has the block id 0. What is asked for is made.
class MechanicalData
{
public:
    vrx::ExcBlockMechanicalData& of(std::uint64_t block);

    vrx::ExcMechanicalMiscData& misc(std::uint64_t block);
    vrx::ExcMfgData& manufacturing(std::uint64_t block);
    vrx::ExcEntityData& entities(std::uint64_t block);
    void setPmi(std::uint64_t block, const std::shared_ptr<vrx::ExcPMIData>& pmi);

    /// Null when nothing belongs to the product as a whole.
    const std::shared_ptr<vrx::ExcRootMechanicalData>& root() const { return m_root; }

    /// By the id of the block.
    const std::map<std::uint64_t, std::shared_ptr<vrx::ExcBlockMechanicalData>>& blocks() const { return m_blocks; }

private:
    std::shared_ptr<vrx::ExcRootMechanicalData> m_root;
    std::map<std::uint64_t, std::shared_ptr<vrx::ExcBlockMechanicalData>> m_blocks;
};
