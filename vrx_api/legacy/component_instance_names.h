#pragma once

#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/legacy/od_db_handle.h"

#include <map>

namespace vrx
{

/// The instance names of components, by their handles in the drawing. Its JSON is an array.
class VRX_API LegacyComponentInstanceNames : public IExchangeObject
{
public:
    static const wstring s_objectName;
    static const wstring& objName() { return s_objectName; }

    /// Replaces the names under the handles that it reads and keeps the others. Throws `std::invalid_argument` for a
    /// value that is no array; what is no name under a handle is passed over.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    const wstring& objectName() const override;
    std::shared_ptr<IExchangeObject> clone() const override;

    /// The names by their handles.
    const std::map<OdDbHandle, wstring>& map() const { return m_map; }
    void setMap(const std::map<OdDbHandle, wstring>& map) { m_map = map; }

    /// Replaces the name under a handle; always true.
    bool addInstanceName(const OdDbHandle& handle, const wstring& name);

    /// Adds the names under handles that have none here.
    void merge(const LegacyComponentInstanceNames& other);

private:
    std::map<OdDbHandle, wstring> m_map;
};

} // namespace vrx
