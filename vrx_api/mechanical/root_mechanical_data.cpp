#include "vrx_api/mechanical/root_mechanical_data.h"

#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

const wstring ExcRootMechanicalData::s_objectName = WIDE("exc_root_mechanical_data");
static const StaticExchangeObject<ExcRootMechanicalData> s_prototype;

template <class Self, class Fields>
void ExcRootMechanicalData::describe(Self& self, Fields& fields)
{
    fields.filled(WIDE("pmi_data"), self.m_pmiData);
    fields.filled(WIDE("log_file"), self.m_logFile);
}
template struct Described<ExcRootMechanicalData>;

void ExcRootMechanicalData::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcRootMechanicalData");
}

void ExcRootMechanicalData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

const wstring& ExcRootMechanicalData::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> ExcRootMechanicalData::clone() const
{
    return std::make_shared<ExcRootMechanicalData>();
}

bool ExcRootMechanicalData::binary() const
{
    return true;
}

bool ExcRootMechanicalData::compress() const
{
    return true;
}

} // namespace vrx
