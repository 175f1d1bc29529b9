#include "tests/full_rows/full_rows.h"
#include "tests/full_rows/shared_texts.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

using namespace vrx;

namespace test
{

namespace
{

const std::string kMass = R"({"dimension":1,"units":"kilogram"})";
const std::string kLength = R"({"dimension":-3,"units":"meter"})";
const std::string kTime = R"({"dimension":-2,"units":"hour"})";
const std::string kTemperature = R"({"dimension":-1,"units":"kelvin"})";
const std::string kProperty = R"({"value":1.5,"unit":{"mass":)" + kMass + R"(,"length":)" + kLength + R"(,"time":)" +
                              kTime + R"(,"temperature":)" + kTemperature + "}}";
const std::string kMaterial = R"({"name":"n","density":)" + kProperty + R"(,"youngs_modulus":)" + kProperty +
                              R"(,"poissons_ratio":)" + kProperty + R"(,"yield_strength":)" + kProperty +
                              R"(,"tensile_strength":)" + kProperty + R"(,"thermal_conductivity":)" + kProperty +
                              R"(,"thermal_expansion_coefficient":)" + kProperty + R"(,"specific_heat":)" + kProperty +
                              R"(,"shear_modulus":)" + kProperty + R"(,"linked_elements":[)" + kEntityText +
                              R"(],"is_part_level_material":true})";

} // namespace

std::vector<FullRow> mechanicalRows()
{
    return {
        fullRow<ExcUnitComponent<EMassUnitType>>("ExcUnitComponent of mass", kMass),
        fullRow<ExcUnitComponent<ELengthUnitType>>("ExcUnitComponent of length", kLength),
        fullRow<ExcUnitComponent<ETimeUnitType>>("ExcUnitComponent of time", kTime),
        fullRow<ExcUnitComponent<ETemperatureUnitType>>("ExcUnitComponent of temperature", kTemperature),
        fullRow<ExcMiscMaterialProperty>("ExcMiscMaterialProperty", kProperty),
        fullRow<ExcMiscMaterialPropertyUnit>("ExcMiscMaterialPropertyUnit", R"({"units":"u","unit_system":"mmns"})"),
        fullRow<ExcMiscMaterial>("ExcMiscMaterial", kMaterial).silent(),
    };
}

} // namespace test
