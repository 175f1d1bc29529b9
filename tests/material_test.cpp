#include "tests/support/add_row.h"
#include "tests/support/enum_row.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <stdexcept>

using namespace vrx;
using test::row;
using EProperty = ExcMiscMaterial::EProperty;

namespace
{

const char* const kNoComponent = "[ERROR] ExcUnitComponent object should have a JSON object type.";
const char* const kProperty = R"({"value":0.0,"unit":{}})";

const test::ModelRow kRows[] = {
    row<ExcMiscMaterial>("MaterialDefault", "{}", R"({"name":"","is_part_level_material":false})"),
    row<ExcMiscMaterial>("MaterialHasNoUnknownProperty", R"({"unknown":{"value":1.5}})",
                         R"({"name":"","is_part_level_material":false})"),
    row<ExcMiscMaterial>("MaterialPropertyOfAnotherKind", R"({"density":null})",
                         R"({"name":"","density":{"value":0.0,"unit":{}},"is_part_level_material":false})",
                         {"[ERROR] ExcMiscMaterialProperty object should have a JSON object type."}),

    row<ExcMiscMaterialProperty>("PropertyDefault", "{}", kProperty),
    row<ExcMiscMaterialProperty>("PropertyUnitOfAnotherKind", R"({"unit":[1]})", kProperty),
    row<ExcMiscMaterialProperty>("PropertyFactorOfAnotherKind", R"({"unit":{"mass":null}})",
                                 R"({"value":0.0,"unit":{"mass":{"dimension":0,"units":"unknown"}}})", {kNoComponent}),

    row<ExcUnitComponent<EMassUnitType>>("ComponentOfAnUnlistedMass", R"({"units":"pound_mass"})",
                                         R"({"dimension":0,"units":"centigram"})"),
    row<ExcUnitComponent<ELengthUnitType>>("ComponentOfAnUnlistedLength", R"({"units":"Meter"})",
                                           R"({"dimension":0,"units":"centimeter"})"),
    row<ExcUnitComponent<ETimeUnitType>>("ComponentOfAnUnlistedTime", R"({"units":"seconds"})",
                                         R"({"dimension":0,"units":"day"})"),
    row<ExcUnitComponent<ETemperatureUnitType>>("ComponentOfAnUnlistedTemperature", R"({"units":"rankine"})",
                                                R"({"dimension":0,"units":"celsius"})"),
};

class MaterialRows : public test::ModelRows
{
};

TEST_P(MaterialRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Material, MaterialRows, testing::ValuesIn(kRows), MaterialRows::nameOf);

class MaterialEnums : public test::EnumRows
{
};

TEST_P(MaterialEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Material, MaterialEnums,
                         testing::Values(test::enumRow("EUnitSystemType", "unit_system",
                                                       &ExcMiscMaterialPropertyUnit::unitSystem,
                                                       &ExcMiscMaterialPropertyUnit::setUnitSystem,
                                                       {"unknown", "mks", "cgs", "fps", "ips", "mmks", "mmns",
                                                        "ipscreo", "si", "not_applicable", "custom"},
                                                       "cgs")),
                         MaterialEnums::nameOf);

class MaterialAdds : public test::AddRows
{
};

TEST_P(MaterialAdds, RefuseNulls)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Material, MaterialAdds,
                         testing::Values(test::addRow("ExcMiscMaterial::addLinkedElement",
                                                      &ExcMiscMaterial::addLinkedElement,
                                                      "ExcMiscMaterial: attempt to add null Linked Element object.")),
                         MaterialAdds::nameOf);

TEST(Material, KeepsEachPropertyUnderItsNumberAndName)
{
    const char* const names[] = {"density",
                                 "youngs_modulus",
                                 "poissons_ratio",
                                 "yield_strength",
                                 "tensile_strength",
                                 "thermal_conductivity",
                                 "thermal_expansion_coefficient",
                                 "specific_heat",
                                 "shear_modulus"};
    int number = 0;
    for (const std::string name : names)
    {
        const auto id = static_cast<EProperty>(++number);
        const std::string text =
            R"({"name":"",")" + name + R"(":{"value":2.5,"unit":{}},"is_part_level_material":false})";
        auto material = test::readFrom<ExcMiscMaterial>(text);
        ASSERT_NE(material.get(id), nullptr) << name;
        EXPECT_EQ(material.get(id)->value(), 2.5);

        ExcMiscMaterial other;
        EXPECT_EQ(other.get(id), nullptr);
        other.set(id, std::make_shared<ExcMiscMaterialProperty>());
        other.set(id, material.get(id));
        EXPECT_EQ(test::written(other), text);
    }
}

TEST(Material, RefusesAnUnknownPropertyAndNoProperty)
{
    ExcMiscMaterial material;
    const auto property = std::make_shared<ExcMiscMaterialProperty>();
    const auto thrown = [](auto operation) { return test::thrownBy<std::invalid_argument>(operation); };
    EXPECT_EQ(thrown([&] { material.get(EProperty::Unknown); }), "Invalid material property id.");
    EXPECT_EQ(thrown([&] { material.set(EProperty::Unknown, property); }), "Invalid material property id.");
    EXPECT_EQ(thrown([&] { material.set(EProperty::Unknown, nullptr); }), "Invalid material property id.");
    EXPECT_EQ(thrown([&] { material.set(EProperty::Density, nullptr); }), "Invalid material property value.");
    EXPECT_EQ(material.get(EProperty::Density), nullptr);

    // A number outside the table has no name to be written under.
    material.set(static_cast<EProperty>(10), property);
    EXPECT_EQ(material.get(static_cast<EProperty>(10)), property);
    EXPECT_EQ(test::written(material), R"({"name":"","is_part_level_material":false})");
}

TEST(MaterialProperty, HasAUnitOfFactors)
{
    const auto density = std::make_shared<ExcMiscMaterialProperty>();
    density->setValue(7850.0);
    density->unit().setMass(EMassUnitType::Kilogram, 1).setLength(ELengthUnitType::Meter, -3);
    EXPECT_EQ(test::written(*density), R"({"value":7850.0,"unit":{"mass":{"dimension":1,"units":"kilogram"},)"
                                       R"("length":{"dimension":-3,"units":"meter"}}})");

    ExcMiscMaterialProperty rate;
    rate.unit().setTemperature(ETemperatureUnitType::Kelvin, -1).setTime(ETimeUnitType::Second, -2);
    EXPECT_EQ(test::written(rate), R"({"value":0.0,"unit":{"time":{"dimension":-2,"units":"second"},)"
                                   R"("temperature":{"dimension":-1,"units":"kelvin"}}})");
}

TEST(MaterialProperty, SharesItsFactorsWithACopyUntilOneIsSet)
{
    ExcMiscMaterialProperty length;
    length.unit().setLength(ELengthUnitType::Inch, 1);
    ExcMiscMaterialProperty copy = length;
    copy.unit().length->setDimension(2);
    EXPECT_EQ(length.unit().length->dimension(), 2);
    copy.unit().setLength(ELengthUnitType::Foot, 3);
    EXPECT_EQ(length.unit().length->units(), ELengthUnitType::Inch);
}

} // namespace
