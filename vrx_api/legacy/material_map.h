#pragma once

#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/legacy/od_db_handle.h"

#include <map>

namespace vrx
{

/// The materials of components, by their handles in the drawing. Its JSON is an array.
class VRX_API LegacyMaterialMap : public IExchangeObject
{
public:
    /// The numbers are in units that host and translator have agreed upon.
    struct Material
    {
        bool hasMaterial = false;
        wstring name;
        double density = 0;
        double thermalConductivity = 0;
        double specificHeat = 0;
    };

    static const wstring s_objectName;
    static const wstring& objName() { return s_objectName; }

    /// Adds the materials under handles that have none yet; of two under one handle the first counts. Throws
    /// `std::invalid_argument` for a value that is no array; what is no material under a handle is passed over.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    const wstring& objectName() const override;
    std::shared_ptr<IExchangeObject> clone() const override;

    /// The materials by their handles.
    const std::map<OdDbHandle, Material>& map() const { return m_map; }
    void setMap(const std::map<OdDbHandle, Material>& map) { m_map = map; }

    /// Replaces the material under a handle, unlike reading; always true.
    bool addMaterial(const OdDbHandle& handle, const Material& material);

    /// Adds the materials under handles that have none here.
    void merge(const LegacyMaterialMap& other);

private:
    std::map<OdDbHandle, Material> m_map;
};

} // namespace vrx
