#include "vrx_api/mechanical/block_mechanical_data.h"

#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

const wstring ExcBlockMechanicalData::s_objectName = WIDE("exc_block_mechanical_data");
static const StaticExchangeObject<ExcBlockMechanicalData> s_prototype;

template <class Self, class Fields>
void ExcBlockMechanicalData::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("block_id"), reference(EIdSpace::Block, self.m_blockId));
    fields.filled(WIDE("log_file"), self.m_logFile);
    fields.filled(WIDE("pmi_data"), self.m_pmiData);
    fields.filled(WIDE("misc_data"), self.m_miscData);
    fields.filled(WIDE("mapping_data"), self.m_mappingData);
    fields.filled(WIDE("mfg_data"), self.m_manufacturingData);
    fields.filled(WIDE("entity_data"), self.m_entityData);
}
template struct Described<ExcBlockMechanicalData>;

void ExcBlockMechanicalData::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcBlockMechanicalData");
}

void ExcBlockMechanicalData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

const wstring& ExcBlockMechanicalData::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> ExcBlockMechanicalData::clone() const
{
    return std::make_shared<ExcBlockMechanicalData>();
}

bool ExcBlockMechanicalData::binary() const
{
    return true;
}

bool ExcBlockMechanicalData::compress() const
{
    return true;
}

} // namespace vrx
