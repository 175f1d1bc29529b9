#include "mechanical/part_materials.h"

#include "common/material_units.h"

#include <algorithm>
#include <cmath>

namespace
{

using EProperty = vrx::ExcMiscMaterial::EProperty;

struct PropertyName
{
    EProperty id;
    const mp::wchar* name;
};

const PropertyName kProperties[] = {
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

// The one density that materials state; nothing for several, since it is not known which of them holds.
std::optional<double> onlyDensity(const std::vector<double>& densities)
{
    const bool isOne = std::all_of(densities.begin(), densities.end(), [&densities](double density) {
        return std::abs(density - densities.front()) <= 1e-6 * densities.front();
    });
    return isOne && !densities.empty() ? std::optional<double>(densities.front()) : std::nullopt;
}

std::optional<double> densityOf(std::size_t body, const std::vector<PartMaterial>& materials)
{
    std::vector<double> own;
    std::vector<double> general;
    bool isNamed = false;
    for (const PartMaterial& material : materials)
    {
        const bool namesBody = std::find(material.bodies.begin(), material.bodies.end(), body) != material.bodies.end();
        isNamed = isNamed || namesBody;
        if (material.density && (namesBody || material.ofAllBodies))
        {
            (namesBody ? own : general).push_back(*material.density);
        }
    }
    return onlyDensity(isNamed ? own : general);
}

} // namespace

std::vector<PartMaterial> partMaterials(const vrx::ExcMechanicalMiscData& data, std::uint64_t block,
                                        const ReceivedBodies& bodies, vrx::ELengthUnitType unit)
{
    std::vector<PartMaterial> materials;
    for (const std::shared_ptr<vrx::ExcMiscMaterial>& sent : data.materials())
    {
        PartMaterial material;
        material.name = sent->name();
        material.ofAllBodies = sent->isPartLevelMaterial();
        for (const auto& [id, name] : kProperties)
        {
            if (const auto property = sent->get(id))
            {
                material.properties.push_back({name, property->value(), units::text(property->unit(), unit)});
                material.density = id == EProperty::Density ? units::density(*property, unit) : material.density;
            }
        }
        for (const BodyLink& link : bodies.links(sent->linkedElements()))
        {
            if (!material.ofAllBodies && link.resolved && link.block == block)
            {
                material.bodies.push_back(link.body);
            }
        }
        materials.push_back(material);
    }
    return materials;
}

std::optional<double> massOf(const std::vector<ReceivedBodies::Body>& bodies,
                             const std::vector<PartMaterial>& materials, vrx::ELengthUnitType unit)
{
    const std::optional<double> perMeter = units::perMeter(unit);
    if (bodies.empty() || !perMeter)
    {
        return std::nullopt;
    }
    double mass = 0;
    for (std::size_t i = 0; i < bodies.size(); ++i)
    {
        const std::optional<double> density = densityOf(i, materials);
        if (!density)
        {
            return std::nullopt;
        }
        mass += *density * std::abs(bodies[i].figures.volume) / (*perMeter * *perMeter * *perMeter);
    }
    return std::isfinite(mass) ? std::optional<double>(mass) : std::nullopt;
}
