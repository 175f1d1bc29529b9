#include "vrx_api/mechanical/misc_material.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

#include <stdexcept>

namespace vrx
{

using EProperty = ExcMiscMaterial::EProperty;

static constexpr EnumName<EProperty> kProperties[] = {
    {EProperty::Unknown, WIDE("unknown")},
    {EProperty::Density, WIDE("density")},
    {EProperty::YoungsModulus, WIDE("youngs_modulus")},
    {EProperty::PoissonsRatio, WIDE("poissons_ratio")},
    {EProperty::YieldStrength, WIDE("yield_strength")},
    {EProperty::TensileStrength, WIDE("tensile_strength")},
    {EProperty::ThermalConductivity, WIDE("thermal_conductivity")},
    {EProperty::ThermalExpansionCoefficient, WIDE("thermal_expansion_coefficient")},
    {EProperty::SpecificHeat, WIDE("specific_heat")},
    {EProperty::ShearModulus, WIDE("shear_modulus")},
};
static constexpr const auto& enumTable(EProperty)
{
    return kProperties;
}

namespace
{

using Properties = std::map<EProperty, std::shared_ptr<ExcMiscMaterialProperty>>;

// The property under one id. A reader that finds its key makes a new one.
template <class Map>
struct Entry
{
    Map& properties;
    EProperty id;
};
template <class Map>
Entry(Map&, EProperty) -> Entry<Map>;

template <class Value>
bool decode(const Value& value, const Entry<Properties>& field)
{
    return decode(value, field.properties[field.id]);
}

std::shared_ptr<ExcMiscMaterialProperty> propertyOf(const Properties& properties, EProperty id)
{
    const auto found = properties.find(id);
    return found == properties.end() ? nullptr : found->second;
}

bool isEmpty(const Entry<const Properties>& field)
{
    return propertyOf(field.properties, field.id) == nullptr;
}

template <class Out>
void encode(Out& out, const Entry<const Properties>& field)
{
    encode(out, propertyOf(field.properties, field.id));
}

void outline(Shape& shape, const Entry<const Properties>& field)
{
    outline(shape, propertyOf(field.properties, field.id));
}

} // namespace

template <class Self, class Fields>
void ExcMiscMaterial::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("name"), self.m_name);
    for (const EnumName<EProperty>& property : tableOf<EProperty>())
    {
        if (property.value != EProperty::Unknown)
        {
            fields.filled(Key(property.name), Entry{self.m_properties, property.value});
        }
    }
    fields.filled(WIDE("linked_elements"), self.m_linkedElements);
    fields.always(WIDE("is_part_level_material"), self.m_partLevelMaterial);
}
template struct Described<ExcMiscMaterial>;

void ExcMiscMaterial::readObject(const JsonValue& value)
{
    readFields(*this, value, kSilently);
}

void ExcMiscMaterial::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

static void checkId(EProperty id)
{
    if (id == EProperty::Unknown)
    {
        throw std::invalid_argument("Invalid material property id.");
    }
}

std::shared_ptr<ExcMiscMaterialProperty> ExcMiscMaterial::get(EProperty id) const
{
    checkId(id);
    return propertyOf(m_properties, id);
}

void ExcMiscMaterial::set(EProperty id, const std::shared_ptr<ExcMiscMaterialProperty>& value)
{
    checkId(id);
    if (value == nullptr)
    {
        throw std::invalid_argument("Invalid material property value.");
    }
    m_properties[id] = value;
}

void ExcMiscMaterial::addLinkedElement(const std::shared_ptr<ExcEntity>& element)
{
    add(m_linkedElements, element, "ExcMiscMaterial: attempt to add null Linked Element object.");
}

} // namespace vrx
