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

const std::string kWCS =
    R"({"origin":[1.0,2.0,3.0],"x":[4.0,5.0,6.0],"y":[7.0,8.0,9.0],"z":[10.0,11.0,12.0],"color":)" + kColorText +
    R"(,"active":true,"id":"i","name":"n","shown":true,"layer_id":-1})";
const std::string kLayer =
    R"({"id":-1,"name":"n","color":)" + kColorText + R"(,"current":true,"entities":[)" + kEntityText + "]}";
const std::string kLayerFilter = R"({"name":"n","type":"laycur","current":true,"layer_id":[7,-1,7]})";
const std::string kNoteParameters = R"({"name":"n","properties":)" + kMiscDataText + "}";
const std::string kSymmetry = R"({"transform_mode":"opposite","transformation":)" + kTransformationText +
                              R"(,"linked_entity":)" + kEntityText + "}";
const std::string kDisplaySet = R"({"name":"n","active":true,"entities":[)" + kEntityText + "]}";
const std::string kMechanicalMiscData =
    R"({"misc_data":)" + kMiscDataText + R"(,"wcs":[)" + kWCS + R"(],"layers":[)" + kLayer + R"(],"layer_filters":[)" +
    kLayerFilter + R"(],"materials":[)" + kMaterial + R"(],"note_parameters":[)" + kNoteParameters +
    R"(],"symmetries":[)" + kSymmetry + R"(],"display_sets":[)" + kDisplaySet + "]}";

const std::string kInformation =
    R"({"entity":)" + kEntityText +
    R"(,"pnames":["p","q"],"name":"n","hidden":true,"line_type":"dash_dot","line_thickness":0.5})";
const std::string kMapping = R"([{"imported":)" + kEntityText + R"(,"original":)" + kEntityText + "}]";
// The original is only read.
const std::string kMappingWritten = R"([{"imported":)" + kEntityText + "}]";

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
        fullRow<ExcMiscWCS>("ExcMiscWCS", kWCS),
        fullRow<ExcMiscLayer>("ExcMiscLayer", kLayer),
        fullRow<ExcMiscLayerFilter>("ExcMiscLayerFilter", kLayerFilter).appends({"layer_id"}),
        fullRow<ExcMiscNoteParameters>("ExcMiscNoteParameters", kNoteParameters),
        fullRow<ExcMiscSymmetry>("ExcMiscSymmetry", kSymmetry),
        fullRow<ExcMiscDisplaySet>("ExcMiscDisplaySet", kDisplaySet),
        fullRow<ExcMechanicalMiscData>("ExcMechanicalMiscData", kMechanicalMiscData),
        fullRow<ExcTopologicalEntityInformation>("ExcTopologicalEntityInformation", kInformation),
        fullRow<ExcEntityData>("ExcEntityData", "[" + kInformation + "]")
            .says("ExcEntityData object should have a JSON array type."),
        fullRow<ExcMappingData>("ExcMappingData", kMapping)
            .writes(kMappingWritten)
            .says("ExcMappingData object should have a JSON array type."),
    };
}

} // namespace test
