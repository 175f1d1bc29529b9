#pragma once

#include "vrx_api/common/entity.h"
#include "vrx_api/mechanical/misc_material_property.h"

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

namespace vrx
{

/// A material by its name, with its physical properties and the entities that are made of it. Copies share the
/// properties and the entities.
class VRX_API ExcMiscMaterial : public IJsonObject
{
public:
    /// The physical properties. Each has a key of its own, its name.
    enum class EProperty : std::int32_t
    {
        Unknown = 0,
        Density = 1,
        YoungsModulus = 2,
        PoissonsRatio = 3,
        YieldStrength = 4,
        TensileStrength = 5,
        ThermalConductivity = 6,
        ThermalExpansionCoefficient = 7,
        SpecificHeat = 8,
        ShearModulus = 9,
    };

    /// A value that is no object is passed over without a word.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    /// Null for a property that the material does not have. Throws `std::invalid_argument` for `EProperty::Unknown`.
    std::shared_ptr<ExcMiscMaterialProperty> get(EProperty id) const;

    /// Adds or replaces a property. Throws `std::invalid_argument` for `EProperty::Unknown` and for a null pointer.
    void set(EProperty id, const std::shared_ptr<ExcMiscMaterialProperty>& value);

    const std::vector<std::shared_ptr<ExcEntity>>& linkedElements() const { return m_linkedElements; }

    /// A null pointer is logged and adds nothing.
    void addLinkedElement(const std::shared_ptr<ExcEntity>& element);

    /// True for the material of the part as a whole.
    bool isPartLevelMaterial() const { return m_partLevelMaterial; }
    void setPartLevelMaterial(bool partLevel) { m_partLevelMaterial = partLevel; }

private:
    friend struct Described<ExcMiscMaterial>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    std::map<EProperty, std::shared_ptr<ExcMiscMaterialProperty>> m_properties;
    std::vector<std::shared_ptr<ExcEntity>> m_linkedElements;
    bool m_partLevelMaterial = false;
};

} // namespace vrx
