#pragma once

#include "received_bodies.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

struct PartMaterial
{
    struct Property
    {
        mp::wstring name; // as on the wire
        double value = 0;
        mp::wstring unit;
    };

    mp::wstring name;
    std::optional<double> density; // kilograms per cubic meter
    std::vector<Property> properties;
    bool ofAllBodies = false;
    std::vector<std::size_t> bodies; // otherwise: their positions in the block
};

/// The materials of a part. The unit is that of the product's lengths.
std::vector<PartMaterial> partMaterials(const vrx::ExcMechanicalMiscData& data, std::uint64_t block,
                                        const ReceivedBodies& bodies, vrx::ELengthUnitType unit);

/// The mass in kilograms of measured bodies; nothing when there are none, when one of them has no density or several,
/// or when the unit is not known. A material that names a body counts before one of all bodies.
std::optional<double> massOf(const std::vector<ReceivedBodies::Body>& bodies,
                             const std::vector<PartMaterial>& materials, vrx::ELengthUnitType unit);
