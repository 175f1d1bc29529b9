#include "mechanical_block.h"

#include "bridge/frames.h"
#include "host/mechanical/mechanical_json.h"
#include "vrx_api/vrx_api_exchange_object.h"

#include <gtest/gtest.h>

namespace
{

// A body that is as large as it has faces, with its center at (1, 2, 3).
BodyFigures measuredByFaces(ENTITY& body, EBox)
{
    ENTITY_LIST faces;
    api_get_faces(&body, faces, PAT_CAN_CREATE, nullptr);
    BodyFigures figures;
    figures.volume = 1000.0 * faces.count();
    figures.area = 100.0 * faces.count();
    figures.centroid = {1, 2, 3};
    return figures;
}

} // namespace

BODY* bodyOfFaces(int count)
{
    auto* const body = new BODY;
    auto* const lump = new LUMP;
    auto* const shell = new SHELL;
    body->addPart(lump);
    lump->addPart(shell);
    for (int i = 0; i < count; ++i)
    {
        shell->addPart(new FACE);
    }
    return body;
}

std::shared_ptr<vrx::ExcEntity> entity(std::uint64_t body, vrx::ExcSubentId::EType type, std::uint64_t index)
{
    auto entity = std::make_shared<vrx::ExcEntity>();
    entity->setType(vrx::ExcEntity::EType::Fsp);
    entity->setFsp(std::make_shared<vrx::ExcFullSubentPath>(body, vrx::ExcSubentId(type, index)));
    return entity;
}

Block::Block()
    : m_bodies(measuredByFaces)
{
    OwnedEntities bodies;
    bodies.list().add(bodyOfFaces(12));
    bodies.list().add(bodyOfFaces(3));
    m_ids = {vrx::ExcBlockGeometry::getEntityId(bodies.list()[0]),
             vrx::ExcBlockGeometry::getEntityId(bodies.list()[1])};
    vrx::ExcBlockGeometry geometry;
    geometry.setBlockId(5);
    geometry.own(true);
    EXPECT_TRUE(geometry.setGeometry(bodies.list(), false));
    m_bodies.add(geometry);

    structure.setUnits(vrx::ELengthUnitType::Millimeter);
    block->setId(5);
    block->setName(WIDE("jaw"));
    block->setPart(true);
    structure.addBlock(block);
    data->setBlockId(5);
    data->setMiscData(misc);
    data->setManufacturingData(features);
    data->setEntityData(entities);
    features->setHasData(true);
}

void Block::place(bool suppressed)
{
    const auto reference = std::make_shared<vrx::ExcBlockReference>();
    reference->setBlockId(5);
    reference->setName(WIDE("jaw"));
    reference->setSuppressed(suppressed);
    structure.addRootBlockReference(reference);
}

MechanicalModel Block::received()
{
    vrx::ExchangeObjectWrapper sent;
    sent.set(data);
    vrx::ExchangeObjectWrapper got;
    vrx::bridge::fromText(vrx::bridge::toText(sent), got);
    return {structure, {std::dynamic_pointer_cast<vrx::ExcBlockMechanicalData>(got.get())}, m_bodies};
}

rapidjson::Document parsed(const MechanicalModel& model, std::uint64_t id)
{
    rapidjson::Document document;
    document.Parse(mechanicalJson(model, id).c_str());
    EXPECT_TRUE(document.IsObject());
    return document;
}
