#pragma once

#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <optional>

/// What the units of the structure and of a material's properties are worth.
namespace units
{

/// How many of it are a meter; nothing for a unit that is not known, among them "model unit".
std::optional<double> perMeter(vrx::ELengthUnitType unit);

/// Kilograms per cubic meter, where a model unit of length is that of the product; nothing when the value is not
/// positive or has not the unit of a density.
std::optional<double> density(const vrx::ExcMiscMaterialProperty& property, vrx::ELengthUnitType product);

/// Such as "g/cm3" or "kg/(m s2)"; empty for a number without a unit.
mp::wstring text(const vrx::ExcMiscMaterialProperty::Unit& unit, vrx::ELengthUnitType product);

} // namespace units
