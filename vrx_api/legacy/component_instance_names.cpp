#include "vrx_api/legacy/component_instance_names.h"

#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/kind.h"
#include "vrx_api/legacy/handle_entries.h"

namespace vrx
{

const wstring LegacyComponentInstanceNames::s_objectName = WIDE("legacy_component_instance_names");
static const StaticExchangeObject<LegacyComponentInstanceNames> s_prototype;

static constexpr Key kNameKey = WIDE("component_name");

static Shape outlineOfNames()
{
    Shape shape;
    outlineEntries(shape, kNameKey, wstring());
    return shape;
}
static const bool s_entered =
    enterShape(typeid(LegacyComponentInstanceNames), signatureWith<LegacyComponentInstanceNames>(), &outlineOfNames);

void LegacyComponentInstanceNames::readObject(const JsonValue& value)
{
    requireArray(value, "LegacyComponentInstanceNames::readObject(): Input json object is not an array");
    readEntries<wstring>(TreeValue(&value), kNameKey, [this](std::uint64_t handle, const wstring& name) {
        addInstanceName(OdDbHandle(handle), name);
    });
}

void LegacyComponentInstanceNames::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    TreeWriter out(allocator);
    encodeEntries(out, m_map, kNameKey);
    value = out.take();
}

const wstring& LegacyComponentInstanceNames::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> LegacyComponentInstanceNames::clone() const
{
    return std::make_shared<LegacyComponentInstanceNames>();
}

bool LegacyComponentInstanceNames::addInstanceName(const OdDbHandle& handle, const wstring& name)
{
    m_map[handle] = name;
    return true;
}

void LegacyComponentInstanceNames::merge(const LegacyComponentInstanceNames& other)
{
    m_map.insert(other.m_map.begin(), other.m_map.end());
}

} // namespace vrx
