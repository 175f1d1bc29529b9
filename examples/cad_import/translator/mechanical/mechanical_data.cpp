#include "mechanical/mechanical_data.h"

vrx::ExcBlockMechanicalData& MechanicalData::of(std::uint64_t block)
{
    std::shared_ptr<vrx::ExcBlockMechanicalData>& data = m_blocks[block];
    if (!data)
    {
        data = std::make_shared<vrx::ExcBlockMechanicalData>();
        data->setBlockId(block);
    }
    return *data;
}

vrx::ExcMechanicalMiscData& MechanicalData::misc(std::uint64_t block)
{
    vrx::ExcBlockMechanicalData& data = of(block);
    if (!data.miscData())
    {
        data.setMiscData(std::make_shared<vrx::ExcMechanicalMiscData>());
    }
    return *data.miscData();
}

vrx::ExcMfgData& MechanicalData::manufacturing(std::uint64_t block)
{
    vrx::ExcBlockMechanicalData& data = of(block);
    if (!data.manufacturingData())
    {
        data.setManufacturingData(std::make_shared<vrx::ExcMfgData>());
        data.manufacturingData()->setHasData(true);
    }
    return *data.manufacturingData();
}

vrx::ExcEntityData& MechanicalData::entities(std::uint64_t block)
{
    vrx::ExcBlockMechanicalData& data = of(block);
    if (!data.entityData())
    {
        data.setEntityData(std::make_shared<vrx::ExcEntityData>());
    }
    return *data.entityData();
}

void MechanicalData::setPmi(std::uint64_t block, const std::shared_ptr<vrx::ExcPMIData>& pmi)
{
    if (block != 0)
    {
        of(block).setPMIData(pmi);
        return;
    }
    m_root = std::make_shared<vrx::ExcRootMechanicalData>();
    m_root->setPMIData(pmi);
}
