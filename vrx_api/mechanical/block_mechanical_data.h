#pragma once

#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/manufacturing/mfg_data.h"
#include "vrx_api/mechanical/entity_data.h"
#include "vrx_api/mechanical/mapping_data.h"
#include "vrx_api/mechanical/mechanical_misc_data.h"
#include "vrx_api/mechanical/pmi_data.h"

#include <cstdint>
#include <memory>

namespace vrx
{

/// All of one block of the product structure that is neither geometry nor tessellation: annotations, layers and
/// materials, manufacturing features, and what is known of its entities. The block's id names the block; nothing checks
/// that there is one. Crosses as compressed binary JSON. Copies share the data.
class VRX_API ExcBlockMechanicalData : public IExchangeObject
{
public:
    static const wstring s_objectName;
    static const wstring& objName() { return s_objectName; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    const wstring& objectName() const override;
    std::shared_ptr<IExchangeObject> clone() const override;
    bool binary() const override;
    bool compress() const override;

    std::uint64_t blockId() const { return m_blockId; }
    void setBlockId(std::uint64_t id) { m_blockId = id; }

    const std::shared_ptr<ExcPMIData>& pmiData() const { return m_pmiData; }
    void setPMIData(const std::shared_ptr<ExcPMIData>& data) { m_pmiData = data; }

    const std::shared_ptr<ExcMechanicalMiscData>& miscData() const { return m_miscData; }
    void setMiscData(const std::shared_ptr<ExcMechanicalMiscData>& data) { m_miscData = data; }

    const std::shared_ptr<ExcMappingData>& mappingData() const { return m_mappingData; }
    void setMappingData(const std::shared_ptr<ExcMappingData>& data) { m_mappingData = data; }

    const std::shared_ptr<ExcMfgData>& manufacturingData() const { return m_manufacturingData; }
    void setManufacturingData(const std::shared_ptr<ExcMfgData>& data) { m_manufacturingData = data; }

    const std::shared_ptr<ExcEntityData>& entityData() const { return m_entityData; }
    void setEntityData(const std::shared_ptr<ExcEntityData>& data) { m_entityData = data; }

    const wstring& logFile() const { return m_logFile; }
    void setLogFile(const wstring& file) { m_logFile = file; }

private:
    friend struct Described<ExcBlockMechanicalData>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::uint64_t m_blockId = 0;
    std::shared_ptr<ExcPMIData> m_pmiData;
    std::shared_ptr<ExcMechanicalMiscData> m_miscData;
    std::shared_ptr<ExcMappingData> m_mappingData;
    std::shared_ptr<ExcMfgData> m_manufacturingData;
    std::shared_ptr<ExcEntityData> m_entityData;
    wstring m_logFile;
};

} // namespace vrx
