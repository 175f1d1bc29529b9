#include "vrx_api/legacy/material_map.h"

#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/shapes.h"
#include "vrx_api/legacy/handle_entries.h"

namespace vrx
{

const wstring LegacyMaterialMap::s_objectName = WIDE("legacy_component_material_map");
static const StaticExchangeObject<LegacyMaterialMap> s_prototype;

static constexpr Key kMaterialKey = WIDE("component_material");

static const auto describeMaterial = [](auto& material, auto& fields) {
    fields.always(WIDE("has_material"), material.hasMaterial);
    fields.always(WIDE("name"), material.name);
    fields.always(WIDE("density"), material.density);
    fields.always(WIDE("thermal_conductivity"), material.thermalConductivity);
    fields.always(WIDE("specific_heat"), material.specificHeat);
};

static bool decode(const TreeValue& value, LegacyMaterialMap::Material& material)
{
    return decode(value, record(material, describeMaterial));
}

static void encode(TreeWriter& out, const LegacyMaterialMap::Material& material)
{
    encode(out, record(material, describeMaterial));
}

static Shape outlineOfMaterials()
{
    const LegacyMaterialMap::Material material;
    Shape shape;
    outlineEntries(shape, kMaterialKey, record(material, describeMaterial));
    return shape;
}
static const bool s_entered =
    enterShape(typeid(LegacyMaterialMap), signatureWith<LegacyMaterialMap>(), &outlineOfMaterials);

void LegacyMaterialMap::readObject(const JsonValue& value)
{
    requireArray(value, "LegacyMaterialMap::readObject(): Input json object is not an array");
    readEntries<Material>(TreeValue(&value), kMaterialKey, [this](std::uint64_t handle, const Material& material) {
        m_map.emplace(OdDbHandle(handle), material);
    });
}

void LegacyMaterialMap::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    TreeWriter out(allocator);
    encodeEntries(out, m_map, kMaterialKey);
    value = out.take();
}

const wstring& LegacyMaterialMap::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> LegacyMaterialMap::clone() const
{
    return std::make_shared<LegacyMaterialMap>();
}

bool LegacyMaterialMap::addMaterial(const OdDbHandle& handle, const Material& material)
{
    m_map[handle] = material;
    return true;
}

void LegacyMaterialMap::merge(const LegacyMaterialMap& other)
{
    m_map.insert(other.m_map.begin(), other.m_map.end());
}

} // namespace vrx
