#pragma once

#include "host/mechanical/mechanical_model.h"
#include "kernel_standin/kernel_standin.h"

#include <rapidjson/document.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

BODY* bodyOfFaces(int count);

std::shared_ptr<vrx::ExcEntity> entity(std::uint64_t body, vrx::ExcSubentId::EType type, std::uint64_t index);

/// The data of block 5, which has a body of twelve faces and one of three, put together and then sent and received.
class Block
{
public:
    Block();

    std::uint64_t body(std::size_t position) const { return m_ids.at(position); }
    std::shared_ptr<vrx::ExcEntity> face(std::uint64_t index, std::size_t position = 0) const
    {
        return entity(body(position), vrx::ExcSubentId::EType::Face, index);
    }

    void place(bool suppressed = false);

    MechanicalModel received();

    vrx::ExcProductStructure structure;
    std::shared_ptr<vrx::ExcBlock> block = std::make_shared<vrx::ExcBlock>();
    std::shared_ptr<vrx::ExcBlockMechanicalData> data = std::make_shared<vrx::ExcBlockMechanicalData>();
    std::shared_ptr<vrx::ExcMechanicalMiscData> misc = std::make_shared<vrx::ExcMechanicalMiscData>();
    std::shared_ptr<vrx::ExcMfgData> features = std::make_shared<vrx::ExcMfgData>();
    std::shared_ptr<vrx::ExcEntityData> entities = std::make_shared<vrx::ExcEntityData>();

private:
    ReceivedBodies m_bodies;
    std::vector<std::uint64_t> m_ids;
};

/// What the host's JSON says of a block.
rapidjson::Document parsed(const MechanicalModel& model, std::uint64_t id = 5);
